// The paths of closing the window.
#include "GameFixture.h"

namespace petal::test {
namespace {

class Startup : public GameFixture {};

TEST_F(Startup, ClosingWithoutAGameEndsAtOnceWithoutAQuestion) {
    f->mnuExit_Click();
    EXPECT_TRUE(host->ending());
    EXPECT_EQ(host->exitStatus(), 0);
    EXPECT_TRUE(host->shownBoxes().empty());
}

// During a game the question comes first: No leaves the game and its timers as they were, or
// clears the table if the game ended while the question stood; Yes closes the Hall of Fame.
TEST_F(Startup, DuringAGameTheAnswerDecides) {
    struct Case {
        MsgResult answer;
        bool endsMeanwhile;
    };
    for (const Case& c : {Case{MsgResult::No, false}, Case{MsgResult::No, true}, Case{MsgResult::Yes, false}}) {
        restart();
        dealWith({}, {}, {});
        f->m.mTurn = 1;
        f->tmrComputer.setEnabled(true);
        host->onMsgBox = [&](const MsgBox& box) {
            EXPECT_EQ(box.title + ": " + box.text, "Quit Petalgardn: Are you sure?");
            if (c.endsMeanwhile) program->g.gGameInProgress = 0;  // a timer ran inside the box
            return c.answer;
        };
        f->mnuExit_Click();
        const bool yes = c.answer == MsgResult::Yes, kept = !yes && !c.endsMeanwhile;
        EXPECT_EQ(host->ending(), yes);
        EXPECT_EQ(program->hof.isOpen(), !yes);
        if (!yes) {
            EXPECT_EQ(f->ctl.imgPCard[0].hasPicture() && f->tmrComputer.Enabled(), kept);
        }
    }
}

}  // namespace
}  // namespace petal::test
