// The rules of a standing deal as the fuzzers check them hold before the first deal and
// through a whole deal against the computer.
#include "GameFixture.h"
#include "Policy.h"
#include "SimPlay.h"
#include "TableInvariants.h"

namespace petal::test {
namespace {

using sim::TableInvariants;

class Invariants : public GameFixture {
protected:
    void SetUp() override {
        start();
        host->onMsgBox = [](const MsgBox&) { return MsgResult::No; };
        host->onForm = [](Form& form) { form.Unload(); };
    }
};

TEST_F(Invariants, HoldBeforeTheFirstDealAndAfterEveryMoveOfAWholeDeal) {
    EXPECT_FALSE(TableInvariants::dealStands(*f));
    EXPECT_EQ(TableInvariants::check(*f), "");
    f->dealer.DealCards();
    EXPECT_TRUE(TableInvariants::dealStands(*f));
    sim::Policy policy(true, 7);
    int moves = 0;
    while (!host->ending() && f->g.gGameInProgress == 1 && moves < 40) {
        ASSERT_TRUE(sim::localMove(*f, policy)) << "the player can move after " << moves << " moves";
        ++moves;
        ASSERT_EQ(TableInvariants::check(*f), "") << "after the player's move " << moves;
        ASSERT_TRUE(runOpponent());
        ASSERT_EQ(TableInvariants::check(*f), "") << "after the computer's turn " << moves;
    }
    EXPECT_GE(moves, 8) << "a whole deal was played";
}

}  // namespace
}  // namespace petal::test
