// The rules of a standing deal as the fuzzers check them: they hold before the first deal and
// through a whole deal against the computer, and each kind of break is found and named.
#include <functional>

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

struct Break {
    const char* name;
    std::function<void(FrmMain&)> apply;
    const char* found;  // a part of the words that name it
};

TEST_F(Invariants, EachBreakIsFoundAndNamed) {
    const Break breaks[] = {
        {"a card in two places",
         [](FrmMain& m) {
             m.ctl.imgFlipCard.Tag = m.ctl.imgPCard[0].Tag, m.ctl.imgFlipCard.Picture = m.ctl.imgPCard[0].Picture;
         },
         "is in the local hand slot 0 and in the flipped card"},
        {"a card lost", [](FrmMain& m) { m.ctl.imgTCard[3].clearCard(); }, "is nowhere: the card is lost"},
        {"a face that is not its Tag's", [](FrmMain& m) { m.ctl.imgPCard[1].Picture = m.m.mCards[40].Picture; },
         "the local hand slot 1 shows another face"},
        {"a Tag that names no position", [](FrmMain& m) { m.ctl.imgTCard[0].Tag = "x"; }, "names no position"},
        {"a total that is not the sum of the piles",
         [](FrmMain& m) { m.ctl.panel[1].lblPointsTotal[3].Caption = "50"; }, "the opposite side's total shows \"50\""},
        {"a counter that is not its pile's", [](FrmMain& m) { m.m.mPoints[0][0][1] = 2; },
         "the local player's row of 10 counts 2 cards"},
        {"a yaku that no pile holds", [](FrmMain& m) { m.m.mYakuCards[1][4] = 3; },
         "the opposite side's yaku group 5 counts 3 cards, its piles hold 0"},
    };
    for (const Break& b : breaks) {
        f->dealer.DealCards();
        ASSERT_EQ(TableInvariants::check(*f), "") << "a fresh deal, before " << b.name;
        b.apply(*f);
        EXPECT_THAT(TableInvariants::check(*f), HasSubstr(b.found)) << b.name;
    }
}

}  // namespace
}  // namespace petal::test
