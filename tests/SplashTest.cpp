// The About box on virtual time: it stays while the game's timers go on.
#include "GameFixture.h"
#include "shell/FrmSplash.h"

namespace petal::test {
namespace {

class Splash : public GameFixture {};

TEST_F(Splash, AboutStaysWhileTheComputerPlaysAndLeavesTheGameAsItWas) {
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
