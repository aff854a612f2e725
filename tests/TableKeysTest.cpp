// The table by keys on the simulated host: a whole deal played with Enter alone, the game's
// guards holding for keys as for clicks, and where the mark goes.
#include "GameFixture.h"
#include "engine/table_view/TableKeys.h"

namespace petal::test {
namespace {

using Key = TableKeys::Key;
using Kind = TableFocus::Kind;
using Place = TableFocus::Place;

constexpr int kPineCrane = 0, kPineRibbon = 1, kPineChaffA = 2, kPlumWarbler = 4, kCherryCurtain = 8;

class TableKeysTest : public GameFixture {
protected:
    void SetUp() override {
        start();
        keys = std::make_unique<TableKeys>(*f);
    }
    void press(Key key, int slot = 0) { keys->press(key, slot); }
    Place at() const { return keys->focus().place(); }
    bool localMayAct() const {
        return f->m.mTurn == 0 && !f->tmrComputer.Enabled() && f->MousePointer() != FrmMain::kPointerHourglass;
    }
    // Counts the deals that end, closing every form and answering every question Yes.
    void playOn() {
        f->events = &counter;
        host->onForm = [](Form& form) { form.Unload(); };
        host->onMsgBox = [](const MsgBox&) { return MsgResult::Yes; };
    }
    // Two hand cards, the first with two pine matches on the table.
    void dealPines() { dealWith({kPineCrane, kPlumWarbler}, {}, {kPineChaffA, kCherryCurtain, kPineRibbon}); }

    struct Counter : GameEvents {
        int ended = 0;
        void dealEnded() override { ++ended; }
    } counter;
    std::unique_ptr<TableKeys> keys;
};

// Enter alone: the mark always goes on to where the game waits, so a deal never stalls.
TEST_F(TableKeysTest, EnterAloneFollowsTheGameThroughAWholeDeal) {
    playOn();
    int presses = 0;
    for (int guard = 0; counter.ended == 0 && guard < 10'000; ++guard) {
        if (program->g.gGameInProgress == 1 && !localMayAct()) {
            ASSERT_TRUE(host->step()) << "nothing left to run";
            continue;
        }
        press(Key::Use);
        ASSERT_LT(++presses, 60) << "the mark stalls on " << ::testing::PrintToString(at());
    }
    EXPECT_EQ(counter.ended, 1);
}

// A flipped card without a match is laid where the hand card just took one: the mark goes back
// to the hand all the same, not onto the card that has come.
TEST_F(TableKeysTest, TheMarkLeavesASlotThatAFlippedCardFilled) {
    constexpr int kPaulowniaChaff = 47;
    dealWith({kPineCrane}, {}, {kPineChaffA}, {kPaulowniaChaff});
    press(Key::Card, 0);
    ASSERT_EQ(at(), (Place{Kind::Table, 0}));
    press(Key::Use);
    ASSERT_EQ(tagOf(f->ctl.imgTCard[0]), 24) << "the flipped card lies in the slot taken from";
    EXPECT_EQ(at().kind, Kind::Hand);
}

// While the other side's flipped card waits with its frames, a key on the hand is refused by
// the hourglass, and the mark stays in the hand rather than going over to those frames.
TEST_F(TableKeysTest, TheMarkDoesNotFollowTheOtherSidesFlippedCard) {
    dealWith({kPineCrane}, {}, {kPineChaffA});
    f->m.mTurn = 1;
    f->setMousePointer(FrmMain::kPointerHourglass);
    f->ctl.shpFlipCard.Visible = true;
    f->ctl.shpTHilite[0].Visible = true;
    press(Key::Card, 0);
    EXPECT_FALSE(f->ctl.shpPHilite.Visible);
    EXPECT_EQ(at(), (Place{Kind::Hand, 0}));
    press(Key::Use);
    EXPECT_EQ(at(), (Place{Kind::Hand, 0}));
}

TEST_F(TableKeysTest, TheGuardsHoldForKeysAsForClicks) {
    dealPines();
    press(Key::Card, 0);
    EXPECT_TRUE(keys->markShown()) << "a digit names its place and acts at once";
    EXPECT_EQ(framedSlots(), (std::vector<int>{0, 2}));
    EXPECT_EQ(at(), (Place{Kind::Table, 0})) << "on to the first framed card";
    press(Key::First);
    press(Key::Use);  // the table top: a drop, refused while a match lies on the table
    EXPECT_TRUE(f->ctl.imgPCard[0].Visible);
    EXPECT_TRUE(f->ctl.imgPCard[0].hasPicture());
    EXPECT_TRUE(f->ctl.shpPHilite.Visible);

    press(Key::Card, 0);  // the same card again undoes the choice
    EXPECT_FALSE(f->ctl.shpPHilite.Visible);
    f->setMousePointer(FrmMain::kPointerHourglass);
    press(Key::Card, 1);
    EXPECT_FALSE(f->ctl.shpPHilite.Visible) << "no hand card while the hourglass shows";
    f->setMousePointer(FrmMain::kPointerDefault);

    f->ctl.imgPCard[1].Visible = false;  // dropped: a click cannot reach it
    EXPECT_FALSE(keys->takes(Key::Card, 1));
    EXPECT_FALSE(keys->takes(Key::Card, 8));
    EXPECT_FALSE(keys->takes(Key::Close)) << "Escape belongs to the window while the panel is closed";
}

TEST_F(TableKeysTest, OnlyFramedCardsAreStopsAndTheMarkKeepsToItsRows) {
    dealPines();
    press(Key::Up);  // shows the mark, on the deck where it started
    press(Key::Down);
    EXPECT_EQ(at(), (Place{Kind::Hand, 7})) << "the hand card nearest the deck";
    press(Key::First);
    EXPECT_EQ(at(), (Place{Kind::Hand, 0}));
    press(Key::Up);
    EXPECT_EQ(at(), (Place{Kind::Table, 2})) << "the left column, lower card, nearest the hand's first";

    // Table cards go column by column, top to bottom: slots 0, 2, 1, 3, then 4.
    press(Key::First);
    std::vector<int> order;
    for (int i = 0; i < 5; ++i, press(Key::Right)) order.push_back(at().index);
    EXPECT_EQ(order, (std::vector<int>{0, 2, 1, 3, 4}));

    press(Key::Down);
    press(Key::Use);  // the hand card under the mark
    ASSERT_TRUE(f->ctl.shpPHilite.Visible);
    press(Key::Last);
    press(Key::Left);
    EXPECT_EQ(at(), (Place{Kind::Table, 2})) << "the last framed card, past the unframed ones";
    press(Key::Left);
    EXPECT_EQ(at(), (Place{Kind::Table, 0}));
    press(Key::Left);
    EXPECT_EQ(at(), (Place{Kind::TableTop, 0})) << "the table top comes first while a card is chosen";

    // A yaku picture opens its panel and keeps the mark; Escape closes the panel.
    press(Key::Down);
    press(Key::Down);
    ASSERT_EQ(at().kind, Kind::Yaku);
    const Place yaku = at();
    press(Key::Use);
    EXPECT_TRUE(f->ctl.picYakuShow.Visible);
    EXPECT_EQ(at(), yaku);
    ASSERT_TRUE(keys->takes(Key::Close));
    press(Key::Close);
    EXPECT_FALSE(f->ctl.picYakuShow.Visible);
}

TEST_F(TableKeysTest, AClickHidesTheMarkAndTheKeysGoOnFromIt) {
    dealPines();
    press(Key::Right);
    ASSERT_TRUE(keys->markShown());
    keys->click({Kind::Hand, 0});
    EXPECT_TRUE(f->ctl.shpPHilite.Visible);
    EXPECT_FALSE(keys->markShown());
    EXPECT_EQ(at(), (Place{Kind::Table, 0})) << "the pine's first match";
    press(Key::Use);  // shows the mark only
    EXPECT_TRUE(f->ctl.imgPCard[0].hasPicture());
    press(Key::Use);
    EXPECT_FALSE(f->ctl.imgPCard[0].hasPicture()) << "taken with the second key";
}

}  // namespace
}  // namespace petal::test
