// The sounds that the game asks of its host: a move's in the order of its steps, none while
// Game > Sound is unchecked, and the two check items of our own kept for the next start.
#include "GameFixture.h"

namespace petal::test {
namespace {

constexpr int kPineCrane = 0, kPineChaffA = 2, kPaulowniaChaff = 46;

class SoundCalls : public GameFixture {
protected:
    void SetUp() override {
        start();
        host->recordSounds = true;
    }
    // The file names asked for since the last look, without the folder.
    std::vector<std::string> heard() {
        std::vector<std::string> names;
        for (const std::string& path : host->sounds) names.push_back(std::filesystem::path(path).filename().string());
        host->sounds.clear();
        return names;
    }
};

TEST_F(SoundCalls, AMoveSoundsEachStepAndNothingOnceSoundIsOff) {
    // The crane takes the pine chaff; the deck turns a paulownia card, which matches nothing and
    // lies down after the pause.
    dealWith({kPineCrane}, {}, {kPineChaffA}, {kPaulowniaChaff});
    f->play.imgPCard_Click(0);
    f->play.imgTCard_Click(0);
    EXPECT_EQ(heard(), (std::vector<std::string>{"capture.wav", "flip.wav", "lay.wav"}));

    f->mnuSound_Click();
    EXPECT_FALSE(f->menu.mnuSound.Checked);
    ASSERT_TRUE(runOpponent());
    EXPECT_TRUE(heard().empty()) << "the opposite side's turn, silent";
    EXPECT_THAT(f->lastSound(), HasSubstr(".wav")) << "the calls go on";
}

TEST_F(SoundCalls, TheCheckItemsAreKeptForTheNextStart) {
    f->mnuSound_Click();
    restart();
    EXPECT_FALSE(f->menu.mnuSound.Checked);
    EXPECT_TRUE(f->menu.mnuAnimations.Checked);
    f->mnuSound_Click();
    f->mnuAnimations_Click();
    restart();
    EXPECT_TRUE(f->menu.mnuSound.Checked);
    EXPECT_FALSE(f->menu.mnuAnimations.Checked);
}

// A single game has no score card, but its end rings by the same margins as a tournament's round.
TEST_F(SoundCalls, ASingleGamesEndSoundsItsResult) {
    struct Case {
        const char *mine, *theirs, *sound;
    };
    for (const Case& c : {Case{"", "", "Tie.wav"}, Case{"160", "40", "pwin3.wav"}}) {
        dealWith({}, {}, {});
        f->ctl.panel[0].lblPointsTotal[3].Caption = c.mine;
        f->ctl.panel[1].lblPointsTotal[3].Caption = c.theirs;
        host->onForm = [](Form& form) { form.Unload(); };
        host->expectMsgBox("Do you want to play again?", "Play Again?", MsgResult::Yes);
        heard();
        f->EndMatch();
        EXPECT_EQ(heard(), std::vector<std::string>{c.sound}) << c.mine << " against " << c.theirs;
    }
}

}  // namespace
}  // namespace petal::test
