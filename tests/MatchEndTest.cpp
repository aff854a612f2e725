// The end of a deal: the wild card's claim, the banners and Hall of Fame offers, the next
// starter, and whole deals and tournaments played to their end on the simulated host.

#include "GameFixture.h"
#include "Policy.h"
#include "SimPlay.h"
#include "records/FrmHOFWinner.h"
#include "scoring/FrmScoreCard.h"

namespace petal::test {
namespace {

class MatchEnd : public GameFixture {
protected:
    // Plays until `deals` deals have ended or the program ends.
    void playDeals(int deals) {
        sim::Policy lowest(false, 0);
        while (!host->ending() && ended < deals) {
            if (!sim::localMove(*f, lowest)) {
                ASSERT_TRUE(host->step()) << "nothing left to run";
            }
        }
    }
    // Ends the deal, closing any form, and answers the question of another game.
    void endDeal(MsgResult again) {
        host->onForm = [](Form& form) { form.Unload(); };
        host->expectMsgBox("Do you want to play again?", "Play Again?", again);
        f->EndMatch();
    }
    struct Counter : GameEvents {
        int* ended;
        explicit Counter(int* e) : ended(e) {}
        void dealEnded() override { ++*ended; }
    };
    int ended = 0;
    Counter counter{&ended};
};

TEST_F(MatchEnd, TheWildCardsOwnerSweepsItsMonthAndTheWillowFromTheTable) {
    // The local player's wild card took the cherry curtain (position 0) earlier.
    dealWith({8}, {}, {9, 41, 44, 10, 0, 42});
    f->ctl.imgTCard[6].clearCard();
    f->ctl.imgTCard[7].clearCard();
    f->ctl.panel[0].imgGagi.Visible = true;
    f->ctl.panel[0].imgGagi.Tag = "0";
    struct Claims : GameEvents {
        std::vector<std::pair<int, int>> seen;
        void claimed(int side, int, int slot) override { seen.push_back({side, slot}); }
    } claims;
    f->events = &claims;
    f->m.mTurn = 1;  // the opposite side moved last
    endDeal(MsgResult::No);
    EXPECT_EQ(claims.seen, (std::vector<std::pair<int, int>>{{0, 0}, {0, 1}, {0, 3}, {0, 5}}));
    EXPECT_TRUE(f->ctl.imgTCard[2].hasPicture()) << "the paulownia stays and scores for nobody";
    EXPECT_TRUE(f->ctl.imgTCard[4].hasPicture());
    EXPECT_EQ(f->ctl.panel[0].lblPointsTotal[3].Caption, "25");
    EXPECT_EQ(f->m.mYakuCards[0][6], 1) << "the claimed cherry ribbon counts for its yaku";
}

// After a single game the ten-point rows, compared as text, name the next starter; in a
// tournament the round's winner starts the next, dealt at once, and a tie gives it to the computer.
TEST_F(MatchEnd, TheNextStarter) {
    struct Case {
        int rounds, row;
        const char* mine;
        const char* theirs;
        int turn;
    };
    const Case cases[] = {{0, 1, "40", "100", 0}, {0, 1, "100", "40", 1}, {0, 1, "", "10", 1}, {0, 1, "20", "20", 1},
                          {0, 1, "30", "", 0},    {3, 3, "60", "50", 0},  {3, 3, "50", "50", 1}, {3, 3, "40", "50", 1}};
    for (const Case& c : cases) {
        restart();
        if (c.rounds) f->settings.WriteSettings(1, c.rounds, -1, 0);
        dealWith({}, {}, {});
        f->ctl.panel[0].lblPointsTotal[c.row].Caption = c.mine;
        f->ctl.panel[1].lblPointsTotal[c.row].Caption = c.theirs;
        host->onForm = [](Form& form) { form.Unload(); };
        if (!c.rounds) host->expectMsgBox("Do you want to play again?", "Play Again?", MsgResult::No);
        f->EndMatch();
        EXPECT_EQ(f->m.mTurn, c.turn) << c.mine << " against " << c.theirs;
        EXPECT_EQ(host->ending(), c.rounds == 0);
        if (c.rounds) {
            EXPECT_EQ(f->tmrComputer.Enabled(), c.turn == 1) << "the next round is dealt at once";
            EXPECT_TRUE(f->ctl.panel[c.turn].imgTurn.Visible && f->m.mRoundNo == 1);
        }
    }
}

// A single game has no score card, but its end rings by the same margins as a tournament's round.
TEST_F(MatchEnd, AWonOrTiedSingleGameOffersTheHallOfFameAndALostOneDoesNot) {
    struct Case {
        const char* mine;
        const char* theirs;
        bool offered;
        const char* sound;
    };
    const Case cases[] = {{"60", "50", true, "pwin1.wav"}, {"", "", true, "Tie.wav"}, {"40", "45", false, "cwin1.wav"},
                          {"160", "40", true, "pwin3.wav"}};
    for (const Case& c : cases) {
        dealWith({}, {}, {});
        f->ctl.panel[0].lblPointsTotal[3].Caption = c.mine;
        f->ctl.panel[1].lblPointsTotal[3].Caption = c.theirs;
        bool offered = false;
        host->onForm = [&](Form& form) {
            auto* winner = dynamic_cast<FrmHOFWinner*>(&form);
            ASSERT_NE(winner, nullptr);
            offered = true;
            EXPECT_EQ(winner->Caption, "Single Game High Score");
            winner->setTxtHOFName("Ayame");
            winner->cmdOK_Click();
        };
        host->expectMsgBox("Do you want to play again?", "Play Again?", MsgResult::Yes);
        f->EndMatch();
        EXPECT_EQ(offered, c.offered) << c.mine << " against " << c.theirs;
        EXPECT_EQ(f->lastSound(), (dir.path() / c.sound).string());
        EXPECT_EQ(program->g.gHighScoreName, "Ayame");
        EXPECT_EQ(program->g.gGameInProgress, 1) << "Yes deals again";
        EXPECT_EQ(f->m.mTurn, 0) << "a single player always leads";
    }
    EXPECT_THAT(program->hof.GetHallOfFame(0), HasSubstr("Ayame,11/22/2026,60,0,N/A,N/A,N/A"));
}

TEST_F(MatchEnd, TheOppositeSidesClaimCanCompleteAYakuThatScoresWithoutBeingCounted) {
    // The opposite side holds the plum and pine ribbons; its wild card took a cherry chaff
    // (position 9), and the cherry ribbon still lies on the table.
    dealWith({}, {}, {9});
    f->m.mTurn = 1;
    f->yaku.ShowYaku(5);
    f->yaku.ShowYaku(1);
    f->piles.SendToCompPoints(9, true, 0);
    f->m.mTurn = 0;  // the local player moved last
    endDeal(MsgResult::No);
    EXPECT_FALSE(f->ctl.imgTCard[0].hasPicture());
    EXPECT_EQ(f->m.mYakuCards[1][6], 3);
    EXPECT_TRUE(f->ctl.lblCYaku[6].Visible);
    EXPECT_EQ(f->ctl.panel[1].lblPointsTotal[3].Caption, "60") << "the ribbon's 10 and the yaku's 50";
    EXPECT_EQ(f->m.mYakuCount[1], 0) << "counted for the last mover, not the claimant";
    EXPECT_EQ(f->ctl.imgWinLose[1].Picture, FrmCards::imgWinLose(0));
}

TEST_F(MatchEnd, EndCommentNamesTheRoundsSoundByItsMargin) {
    struct Case {
        int p, c;
        const char* sound;
    };
    const Case cases[] = {{100, 50, "pwin1.wav"}, {101, 50, "pwin2.wav"}, {150, 50, "pwin2.wav"}, {151, 50, "pwin3.wav"},
                          {50, 100, "cwin1.wav"}, {0, 51, "cwin2.wav"},   {0, 101, "cwin3.wav"},  {70, 70, "Tie.wav"}};
    f->settings.WriteSettings(1, 3, -1, 0);
    program->g.dimRoundScores(3);
    f->m.mRoundNo = 2;
    for (const Case& c : cases) {
        program->g.gRoundScores[0][2] = c.p;
        program->g.gRoundScores[1][2] = c.c;
        f->matchEnd.EndComment();
        EXPECT_EQ(f->lastSound(), (dir.path() / c.sound).string()) << c.p << " against " << c.c;
    }
}

// At a tournament's last round each table has its own rule: a won or tied round is offered to
// the single games, the tournament when it is not lost; tied rounds do not count as won.
TEST_F(MatchEnd, TheLastRoundOffersTheRoundAndTheTournamentEachByItsOwnRule) {
    struct Offer {
        std::string caption;
        int roundsWon, rounds;
        bool operator==(const Offer&) const = default;
    };
    struct Case {
        const char* rule;
        std::vector<int> mine, theirs;
        std::vector<Offer> offers;
    };
    const Case cases[] = {
        {"a lost tournament still offers its won round", {130, 20, 30, 80}, {160, 90, 40, 30},
         {{"Single Game High Score", 0, 0}}},
        {"a tied tournament is offered; its tied round is not won", {150, 50, 50, 50}, {150, 40, 50, 60},
         {{"Tournament High Score", 1, 3}}},
        {"a tied round is offered as a single game", {160, 60, 50, 50}, {140, 40, 50, 50},
         {{"Single Game High Score", 0, 0}, {"Tournament High Score", 1, 3}}},
    };
    f->settings.WriteSettings(1, 3, -1, 0);
    for (const Case& c : cases) {
        program->g.gRoundScores = {c.mine, c.theirs};
        f->m.mRoundNo = 3;
        f->ctl.panel[0].lblPointsTotal[3].Caption = std::to_string(c.mine[3]);
        f->ctl.panel[1].lblPointsTotal[3].Caption = std::to_string(c.theirs[3]);
        std::vector<Offer> offers;
        host->onForm = [&](Form& form) {
            auto& winner = dynamic_cast<FrmHOFWinner&>(form);
            offers.push_back({winner.Caption, winner.mRoundsWon, winner.mRounds});
            winner.cmdCancel_Click();
        };
        f->matchEnd.CheckWinLose();
        EXPECT_EQ(offers, c.offers) << c.rule;
    }
}

// Each tournament ends with its score card and the question; Yes starts a second one, whose
// card adds its own rounds, and No closes the program.
TEST_F(MatchEnd, TournamentsOfTwoAndTwentyRoundsRunToTheirEndWithTheScoreCardAndAgainAfterYes) {
    for (const int rounds : {2, 20}) {
        restart();
        f->events = &counter;
        ended = 0;
        f->settings.WriteSettings(1, rounds, -1, 0);
        std::vector<std::vector<std::string>> lastCard;
        int cardsShown = 0;
        host->onForm = [&](Form& form) {
            if (auto* card = dynamic_cast<FrmScoreCard*>(&form)) {
                ++cardsShown;
                EXPECT_EQ(card->grid.size(), rounds + 2u);
                lastCard.clear();
                for (const auto& row : card->grid) lastCard.push_back({row[0].text, row[1].text, row[2].text});
                card->cmdOK_Click();
            } else {
                form.Unload();
            }
        };
        host->expectMsgBox("Do you want to play again?", "Play Again?", MsgResult::Yes);
        host->expectMsgBox("Do you want to play again?", "Play Again?", MsgResult::No);
        f->dealer.imgDeck_Click();
        playDeals(rounds);
        EXPECT_EQ(program->g.gGameInProgress, 1) << "Yes starts the second tournament";
        EXPECT_EQ(f->m.mRoundNo, 0);
        playDeals(2 * rounds);
        EXPECT_EQ(cardsShown, 2 * rounds);
        EXPECT_TRUE(host->ending()) << "No at the end of the tournament closes the program";
        EXPECT_EQ(program->g.gGameInProgress, 0);
        EXPECT_EQ(f->m.mRoundNo, 0);
        const auto& scores = program->g.gRoundScores;
        ASSERT_EQ(lastCard.size(), static_cast<std::size_t>(rounds + 2));
        EXPECT_EQ(lastCard[0], (std::vector<std::string>{"Round", "Player", "Computer"}));
        int total = 0;
        for (int r = 1; r <= rounds; ++r) {
            EXPECT_EQ(lastCard[r], (std::vector<std::string>{std::to_string(r), std::to_string(scores[0][r]),
                                                             std::to_string(scores[1][r])}));
            total += scores[0][r];
        }
        EXPECT_EQ(lastCard[rounds + 1][1], std::to_string(total)) << "the second tournament's own total";
        EXPECT_EQ(lastCard[rounds + 1][0], scores[0][rounds] == 0 ? "Total" : "Final");
        EXPECT_EQ(scores[0][0], total);
    }
}

}  // namespace
}  // namespace petal::test
