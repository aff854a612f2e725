// The paths of closing the window.
#include "GameFixture.h"

namespace petal::test {
namespace {

class Startup : public GameFixture {
protected:
    void SetUp() override { start(); }
};

TEST_F(Startup, ClosingWithoutAGameEndsAtOnceWithoutAQuestion) {
    f->mnuExit_Click();
    EXPECT_TRUE(host->ending());
    EXPECT_EQ(host->exitStatus(), 0);
    EXPECT_TRUE(host->shownBoxes().empty());
}

TEST_F(Startup, NoToTheQuestionLeavesTheGameAndItsTimersAsTheyWere) {
    dealWith({}, {}, {});
    f->m.mTurn = 1;
    f->tmrComputer.setEnabled(true);
    host->expectMsgBox("Are you sure?", "Quit Petalgardn", MsgResult::No);
    f->mnuExit_Click();
    EXPECT_FALSE(host->ending());
    EXPECT_EQ(program->g.gGameInProgress, 1);
    EXPECT_TRUE(f->tmrComputer.Enabled());
    EXPECT_TRUE(f->ctl.imgPCard[0].hasPicture());
}

TEST_F(Startup, NoAfterTheGameEndedMeanwhileClearsTheTable) {
    dealWith({}, {}, {});
    // The game ends while the question stands (a timer ran inside the box).
    host->onMsgBox = [this](const MsgBox& box) {
        EXPECT_EQ(box.title, "Quit Petalgardn");
        program->g.gGameInProgress = 0;
        return MsgResult::No;
    };
    f->mnuExit_Click();
    EXPECT_FALSE(host->ending());
    EXPECT_FALSE(f->ctl.imgPCard[0].hasPicture());
}

TEST_F(Startup, YesClosesTheHallOfFameAndEndsTheProgram) {
    dealWith({}, {}, {});
    host->expectMsgBox("Are you sure?", "Quit Petalgardn", MsgResult::Yes);
    f->mnuExit_Click();
    EXPECT_TRUE(host->ending());
    EXPECT_FALSE(program->hof.isOpen());
}

}  // namespace
}  // namespace petal::test
