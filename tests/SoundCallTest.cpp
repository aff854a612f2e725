// The sounds that the game asks of its host: a move's in the order of its steps, none while
// Game > Sound is unchecked; the check items kept for the next start.
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
    // The file names asked for since the last look.
    std::vector<std::string> heard() {
        std::vector<std::string> names;
        for (const std::string& path : host->sounds) names.push_back(std::filesystem::path(path).filename().string());
        host->sounds.clear();
        return names;
    }
};

TEST_F(SoundCalls, AMoveSoundsEachStepAndNothingOnceSoundIsOffWhichTheNextStartKeeps) {
    // The crane takes the pine chaff; the deck turns a paulownia card, which matches nothing and
    // lies down after the pause.
    dealWith({kPineCrane}, {}, {kPineChaffA}, {kPaulowniaChaff});
    f->play.imgPCard_Click(0);
    f->play.imgTCard_Click(0);
    EXPECT_EQ(heard(), (std::vector<std::string>{"capture.wav", "flip.wav", "lay.wav"}));
    f->mnuSound_Click();
    f->mnuAnimations_Click();
    ASSERT_TRUE(runOpponent());
    EXPECT_EQ(heard(), std::vector<std::string>{}) << "the opposite side's turn, silent";
    restart();
    EXPECT_FALSE(f->menu.mnuSound.Checked);
    EXPECT_FALSE(f->menu.mnuAnimations.Checked);
}

}  // namespace
}  // namespace petal::test
