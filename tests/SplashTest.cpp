// The splash's two lives on virtual time: the greeting that leaves early at a key, and the
// About box that stays while the game's timers go on.
#include "GameFixture.h"
#include "shell/FrmSplash.h"

namespace petal::test {
namespace {

class Splash : public GameFixture {
protected:
    // Starts the program with `script` acting on the greeting while it stands.
    void startWith(const std::function<void(FrmSplash&)>& script) {
        program = std::make_unique<Program>(*host);
        f = &program->frmMain;
        host->onForm = [&](Form& form) { script(dynamic_cast<FrmSplash&>(form)); };
        program->Main();
    }
};

TEST_F(Splash, AKeyEndsTheGreetingEarlyAndNoTickComesAfterIt) {
    startWith([&](FrmSplash& splash) {
        host->advance(1500);
        splash.Form_KeyPress(' ');
        EXPECT_FALSE(splash.loaded());
        EXPECT_FALSE(splash.Timer1.Enabled());
        host->advance(5000);
        EXPECT_EQ(splash.mTickCount, 1);
    });
    EXPECT_EQ(host->now(), 6500);
}

TEST_F(Splash, AboutStaysWhileTheComputerPlaysAndLeavesTheGameAsItWas) {
    start();
    dealWith({}, {}, {});
    const auto hand = f->ctl.imgPCard;
    f->m.mTurn = 1;
    f->tmrComputer.setEnabled(true);
    bool stood = false;
    host->onForm = [&](Form& form) {
        auto& about = dynamic_cast<FrmSplash&>(form);
        EXPECT_TRUE(about.mAboutMode);
        EXPECT_TRUE(about.lblCloseSplash.Visible);
        EXPECT_FALSE(about.Timer1.Enabled());
        EXPECT_TRUE(runOpponent(10'000)) << "the computer's turn stalled behind the About box";
        host->advance(10'000);
        stood = about.loaded();
        about.lblCloseSplash_Click();
    };
    f->mnuHAbout_Click();
    EXPECT_TRUE(stood);
    EXPECT_EQ(f->m.mCompPlays, 1);
    EXPECT_EQ(f->m.mTurn, 0);
    EXPECT_EQ(program->g.gGameInProgress, 1);
    for (int i = 0; i < 8; ++i) EXPECT_EQ(f->ctl.imgPCard[i].Picture, hand[i].Picture);
}

}  // namespace
}  // namespace petal::test
