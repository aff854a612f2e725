// The computer's choices on hand-built tables, and its turn stepped tick by tick.
#include "GameFixture.h"
#include "TableInvariants.h"

namespace petal::test {
namespace {

class Computer : public GameFixture {
protected:
    // Starts the opposite side's turn as the end of the local player's turn does.
    void startOppositeTurn() {
        f->m.mTurn = 1;
        f->m.mCompPhase = 0;
        f->tmrComputer.setEnabled(true);
    }
    void tick() { host->advance(500); }
    // The opposite side's choice and its drop, without the ticks between them.
    void selectAndDrop() {
        f->m.mTurn = 1;
        f->computer.CompSelectCard();
        f->m.mCompPhase = 1;
        f->computer.CompDropCard();
    }
};

TEST_F(Computer, TheSelectionTakesTheBestCaptureOrElseTheCheapestCard) {
    struct Case {
        const char* rule;
        std::initializer_list<int> hand, table;
        int playedSlot;  // cleared before the choice, or -1
        int chosen;
        std::vector<int> framed;
    };
    const Case cases[] = {
        {"no match: the cheapest card, the highest slot of equals", {2, 4, 10, 14, 18, 22, 26, 30},
         {44, 45, 46, 47, 40, 41, 42, 39}, -1, 7, {}},
        {"equal captures: the lower slot, its matches framed", {0, 8, 14, 18, 22, 26, 30, 34},
         {2, 10, 44, 45, 46, 47, 40, 41}, -1, 0, {0}},
        {"a played slot is skipped", {0, 8, 14, 18, 22, 26, 30, 34}, {2, 10, 44, 45, 46, 47, 40, 41}, 0, 1, {1}},
        {"only the sum counts: 20 + 0 beats 5 + 10", {12, 0, 18, 22, 26, 30, 34, 38}, {13, 2, 44, 45, 46, 47, 40, 41},
         -1, 1, {1}},
        {"captures worth nothing: the last 0-point card, matched or not", {2, 4, 30, 5, 9, 17, 21, 25},
         {3, 44, 45, 46, 47, 40, 41, 42}, -1, 2, {}},
    };
    for (const Case& c : cases) {
        restart();
        dealWith({}, c.hand, c.table);
        if (c.playedSlot >= 0) f->ctl.imgCCard[c.playedSlot].clearCard();
        f->computer.CompSelectCard();
        EXPECT_EQ(f->m.mCompCard, c.chosen) << c.rule;
        EXPECT_EQ(f->m.mCompDeckPos, 8 + c.chosen) << c.rule;
        EXPECT_EQ(f->ctl.imgCCard[c.chosen].Picture, f->m.mCards[8 + c.chosen].Picture) << "turned face up";
        EXPECT_EQ(f->ctl.imgCCard[c.chosen].Tag, "-1");
        EXPECT_EQ(framedSlots(), c.framed) << c.rule;
    }
}

TEST_F(Computer, TheWildCardIsWorthTheBestCardOnTheTable) {
    dealWith({}, {43, 14, 18, 22, 26, 30, 34, 38}, {2, 44, 10, 45, 46, 47, 40, 41});
    f->computer.CompSelectCard();
    EXPECT_EQ(f->m.mCompCard, 0);
    EXPECT_EQ(framedSlots().size(), 8u);
    f->m.mTurn = 1;
    f->m.mCompPhase = 1;
    f->computer.CompDropCard();
    EXPECT_EQ(pileIndices(1, 0), std::vector<int>{44});
    EXPECT_TRUE(f->ctl.panel[1].imgGagi.Visible);
    EXPECT_EQ(tagOf(f->ctl.panel[1].imgGagi), 17);
    EXPECT_TRUE(framedSlots().empty());
}

TEST_F(Computer, TheDropTakesTheMostValuableMatchOrOfEqualsTheLowerSlot) {
    struct Case {
        const char* rule;
        std::initializer_list<int> hand, table;
        int taken, left;
        std::vector<int> twenties;
    };
    const Case cases[] = {
        {"the curtain before the chaff", {9, 14, 18, 22, 26, 30, 34, 38}, {10, 8, 11, 44, 45, 46, 47, 40}, 1, 0, {8}},
        {"two chaff: the lower slot", {0, 14, 18, 22, 26, 30, 34, 38}, {44, 2, 3, 45, 46, 47, 40, 41}, 1, 2, {0}},
    };
    for (const Case& c : cases) {
        restart();
        dealWith({}, c.hand, c.table);
        selectAndDrop();
        EXPECT_FALSE(f->ctl.imgTCard[c.taken].hasPicture()) << c.rule;
        EXPECT_TRUE(f->ctl.imgTCard[c.left].hasPicture()) << c.rule;
        EXPECT_FALSE(f->ctl.imgCCard[0].hasPicture());
        EXPECT_TRUE(f->ctl.imgCCard[0].Visible) << "a capture leaves the hand place visible";
        EXPECT_EQ(pileIndices(1, 0), c.twenties) << c.rule;
    }
}

TEST_F(Computer, ATurnTakesFourTicksAndHandsBackToThePlayer) {
    dealWith({}, {44, 14, 18, 22, 26, 30, 34, 38}, {45, 0, 1, 2, 3, 4, 5, 6}, {7});
    startOppositeTurn();
    tick();  // select: the card stands face up with its match framed
    EXPECT_EQ(f->MousePointer(), FrmMain::kPointerHourglass);
    EXPECT_TRUE(f->ctl.panel[1].imgTurn.Visible);
    EXPECT_EQ(f->ctl.imgCCard[0].Picture, pic::card(44));
    EXPECT_EQ(framedSlots(), std::vector<int>{0});
    tick();  // drop: the phoenix takes the other paulownia
    EXPECT_EQ(pileIndices(1, 0), std::vector<int>{44});
    tick();  // flip: the plum chaff finds the plum on the table and waits
    EXPECT_TRUE(f->ctl.imgFlipCard.hasPicture());
    EXPECT_EQ(f->ctl.shpFlipCard.BorderColor, 0x0000FFu) << "red for the opposite side";
    tick();  // drop the flipped card; the turn ends
    EXPECT_FALSE(f->ctl.imgFlipCard.hasPicture());
    EXPECT_EQ(f->m.mTurn, 0);
    EXPECT_EQ(f->m.mCompPlays, 1);
    EXPECT_FALSE(f->tmrComputer.Enabled());
    EXPECT_EQ(f->MousePointer(), FrmMain::kPointerDefault);
    EXPECT_TRUE(f->ctl.panel[0].imgTurn.Visible);
    EXPECT_FALSE(f->ctl.panel[1].imgTurn.Visible);
}

// A click on the table top may lay the computer's card down before the drop tick; the tick then
// took that card with itself, counting it twice.
TEST_F(Computer, AClickOnTheTableBeforeTheDropTickLaysTheCardDownOnce) {
    dealWith({}, {0, 1, 2, 3, 4, 5, 6, 7}, {8, 9, 10, 11, 12, 13, 14, 15});
    startOppositeTurn();
    tick();  // select: no card of the hand matches the table
    const int played = f->m.mCompDeckPos;
    f->play.imgTable_Click();  // the player's click does what the drop tick would do
    tick();  // drop
    int onTable = 0;
    for (const Image& slot : f->ctl.imgTCard) onTable += tagOf(slot) == played ? 1 : 0;
    EXPECT_EQ(onTable, 1);
    for (int row = 0; row < 4; ++row) EXPECT_TRUE(pileIndices(1, row).empty()) << "nothing was captured";
    EXPECT_EQ(f->m.mCompPhase, 2) << "the turn goes on to its flip";
}

// A deal that begins while the flip pauses (a restart and a deal, as a peer's DEAL brings them)
// starts the opposite side's turn from its first phase; the old turn does not step it on.
TEST_F(Computer, ADealDuringTheFlipsPauseStartsItsOwnTurn) {
    f->g.gGameType = 1;  // a tournament keeps the leader a deal is given
    f->g.gRounds = 3;
    dealWith({}, {44, 14, 18, 22, 26, 30, 34, 38}, {45, 0, 1, 2, 3, 4, 5, 6}, {39});
    startOppositeTurn();
    tick();
    tick();
    const unsigned before = f->dealer.serial();
    host->schedule(host->now() + 700, [this] {
        f->dealer.NewGame(true);
        f->m.mTurn = 1;
        f->dealer.DealCards();
    });
    tick();  // the flip of 39 pauses, and the new deal comes inside the pause
    ASSERT_NE(f->dealer.serial(), before);
    EXPECT_EQ(f->m.mCompPhase, 0);
    EXPECT_TRUE(f->tmrComputer.Enabled());
    EXPECT_EQ(sim::TableInvariants::check(*f), "");
    ASSERT_TRUE(runOpponent());
    EXPECT_EQ(f->m.mCompPlays, 1);
    EXPECT_EQ(sim::TableInvariants::check(*f), "") << "the new deal's first turn is whole";
}

TEST_F(Computer, AnEighthTurnWithThePlayerBehindHandsTheTurnBack) {
    dealWith({}, {}, {});
    f->m.mCompPlays = 8;
    f->m.mPlayerPlays = 7;
    startOppositeTurn();
    tick();
    EXPECT_FALSE(f->tmrComputer.Enabled());
    EXPECT_EQ(f->m.mTurn, 0);
    EXPECT_TRUE(f->ctl.panel[0].imgTurn.Visible);
    EXPECT_EQ(program->g.gGameInProgress, 1) << "no end of the deal from this tick";
}

}  // namespace
}  // namespace petal::test
