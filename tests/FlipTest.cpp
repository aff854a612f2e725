// The deck flip: a card with a match waits for the player's click, one without lies down after
// the pause, and the turn passes once the flip is dealt with.
#include "GameFixture.h"
#include "platform/Timer.h"

namespace petal::test {
namespace {

constexpr int kPineCrane = 0, kPineChaffA = 2, kPineChaffB = 3, kPlumChaff = 6, kWillowWild = 43;
constexpr int kPaulowniaChaff = 46, kPaulowniaOther = 47;

class Flip : public GameFixture {
protected:
    // Plays hand slot 0 onto table slot 0 (a capture) so that the flip follows.
    void captureFirst() {
        f->play.imgPCard_Click(0);
        f->play.imgTCard_Click(0);
    }
};

TEST_F(Flip, AFlipWithAMatchWaitsForTheChoiceAndThenPassesTheTurn) {
    dealWith({kPineCrane}, {}, {kPineChaffA, kPlumChaff, kPaulowniaChaff}, {kPaulowniaOther});
    captureFirst();
    EXPECT_TRUE(f->ctl.shpFlipCard.Visible);
    EXPECT_EQ(tagOf(f->ctl.imgFlipCard), 24);
    EXPECT_EQ(framedSlots(), std::vector<int>{2});
    EXPECT_EQ(f->m.mPlayerPlays, 1);
    EXPECT_EQ(f->m.mTurn, 0) << "the turn waits for the flipped card";
    f->play.imgPCard_Click(1);  // refused while the flip waits
    EXPECT_FALSE(f->ctl.shpPHilite.Visible);
    f->play.imgTCard_Click(2);
    EXPECT_FALSE(f->ctl.imgFlipCard.hasPicture());
    EXPECT_FALSE(f->ctl.shpFlipCard.Visible);
    EXPECT_EQ(pileIndices(0, 3), (std::vector<int>{kPineChaffA, kPaulowniaChaff, kPaulowniaOther}));
    EXPECT_EQ(f->m.mTurn, 1);
    EXPECT_TRUE(f->tmrComputer.Enabled());
}

// A flip without a match stands for half a second under the hourglass, then lies in the slot that
// the capture freed. The hourglass was set only from the arrow: over a yaku picture the hand
// pointer stayed, and a second hand card could be played while the flipped card stood.
TEST_F(Flip, AFlipWithoutAMatchPausesAndNoHandCardIsPlayedMeanwhileWhateverThePointer) {
    dealWith({kPineCrane}, {}, {kPineChaffA}, {kPaulowniaOther});
    const auto before = host->now();
    f->yaku.imgPYaku_MouseMove(0);
    ASSERT_EQ(f->MousePointer(), FrmMain::kPointerHand);
    bool selected = true;
    Timer during(*host, [&] {
        during.setEnabled(false);
        f->play.imgPCard_Click(1);
        selected = f->ctl.shpPHilite.Visible;
    }, 100);
    during.setEnabled(true);
    captureFirst();
    EXPECT_EQ(host->now() - before, 500);
    EXPECT_EQ(tagOf(f->ctl.imgTCard[0]), 24);
    EXPECT_EQ(f->m.mTurn, 1);
    EXPECT_FALSE(selected);
    EXPECT_TRUE(f->ctl.imgPCard[1].hasPicture());
    EXPECT_EQ(f->MousePointer(), FrmMain::kPointerHourglass) << "left on until the opposite turn ends";
}

// Abandoning the game inside a flip's pause, the local player's or the computer's, used to leave
// the flipped card lying on the cleared table.
TEST_F(Flip, AFlipOutlivingItsGameDoesNothing) {
    for (const int side : {0, 1}) {
        restart();
        dealWith({kPineCrane}, {kPlumChaff}, {kPineChaffA}, {kPaulowniaOther});
        Timer abandon(*host, [&] {
            abandon.setEnabled(false);
            EXPECT_TRUE(f->ctl.imgFlipCard.hasPicture()) << "inside the pause, side " << side;
            host->expectMsgBox("Do you want to quit the game in progress?", "Game In Progress", MsgResult::Yes);
            f->dealer.imgDeck_Click();
        }, side == 0 ? 100 : 1700);
        abandon.setEnabled(true);
        if (side == 0) {
            captureFirst();
        } else {
            f->m.mTurn = 1;
            f->tmrComputer.setEnabled(true);
        }
        host->advance(3000);
        EXPECT_EQ(program->g.gGameInProgress, 0) << side;
        for (const Image& slot : f->ctl.imgTCard) EXPECT_FALSE(slot.hasPicture()) << "a stray card, side " << side;
        EXPECT_FALSE(f->ctl.imgFlipCard.hasPicture());
        EXPECT_EQ(f->m.mCompPhase, 0) << side;
    }
}

TEST_F(Flip, TheWildCardFlippedFramesEveryOccupiedSlot) {
    dealWith({kPineCrane}, {}, {kPineChaffA}, {kWillowWild});
    captureFirst();
    EXPECT_EQ(framedSlots(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7}));
    f->play.imgTCard_Click(6);  // any framed card may be taken, not only the best
    EXPECT_EQ(f->m.mTurn, 1);
    EXPECT_EQ(tagOf(f->ctl.imgTCard[6]), -1);
}

TEST_F(Flip, TheLastFlipEndsTheDealOnlyAfterItsCardIsPlaced) {
    dealWith({kPineCrane}, {}, {kPineChaffA, kPineChaffB}, {kPaulowniaOther});
    program->g.gGameType = 0;
    f->m.mCompPlays = 8;
    f->m.mPlayerPlays = 7;
    bool asked = false;
    host->onForm = [](Form& form) { form.Unload(); };  // the Hall of Fame's name form
    host->onMsgBox = [&](const MsgBox& box) {
        EXPECT_EQ(box.text, "Do you want to play again?");
        EXPECT_FALSE(f->ctl.imgFlipCard.hasPicture()) << "the flipped card has come to rest";
        asked = true;
        return MsgResult::No;
    };
    f->play.imgPCard_Click(0);
    f->play.imgTCard_Click(0);
    EXPECT_TRUE(asked);
    EXPECT_FALSE(f->tmrComputer.Enabled()) << "no opposite turn after the eighth";
    EXPECT_TRUE(host->ending());
}

}  // namespace
}  // namespace petal::test
