// The setup dialog driven as a user would: option buttons, the rounds and host boxes, the two
// validation messages, Cancel, and the reset of a running game.
#include "GameFixture.h"
#include "Policy.h"
#include "SimPlay.h"
#include "records/FrmHOFWinner.h"
#include "shell/FrmSetup.h"

namespace petal::test {
namespace {

class Setup : public GameFixture {
protected:
    // Opens the dialog from the menu; `script` acts on it as the user.
    void openSetup(const std::function<void(FrmSetup&)>& script) {
        host->onForm = [&](Form& form) { script(dynamic_cast<FrmSetup&>(form)); };
        f->mnuSetup_Click();
    }
    std::string settingsFile() const { return fileText(dir.path() / "GARDENIA.ini"); }
};

TEST_F(Setup, TournamentRoundsMustLieFromTwoToTwenty) {
    struct Case {
        const char* rounds;
        bool accepted;
    };
    for (const Case& c : {Case{"1", false}, Case{"2", true}, Case{"20", true}, Case{"21", false}, Case{"", false}}) {
        openSetup([&](FrmSetup& d) {
            d.selectGameType(1);
            EXPECT_TRUE(d.txtRounds.Enabled);
            EXPECT_EQ(d.txtRounds.BackColor, FrmSetup::kWhite);
            d.setText(d.txtRounds, c.rounds);
            if (!c.accepted)
                host->expectMsgBox("Rounds cannot be less than 2 or greater than 20.", "Invalid Rounds Value", MsgResult::OK);
            d.cmdOK_Click();
            EXPECT_EQ(d.loaded(), !c.accepted) << c.rounds;
            if (!c.accepted) {
                EXPECT_EQ(d.focus, FrmSetup::Field::Rounds);
                d.cmdCancel_Click();
            }
        });
        EXPECT_EQ(host->pendingAnswers(), 0u);
        if (c.accepted) {
            EXPECT_EQ(settingsFile(), "1\r\n" + std::string(c.rounds) + "\r\n-1\r\n0\r\n");
        }
    }
    EXPECT_TRUE(f->menu.mnuVScore.Enabled) << "a tournament was stored";
}

TEST_F(Setup, JoiningATournamentNeedsAHostAddressButASingleGameDoesNotAndNoneJoinsRubbish) {
    openSetup([&](FrmSetup& d) {
        d.selectGame(2);
        d.setText(d.txtHostIP, "192.0.2.999");
        host->expectMsgBox(FrmSetup::kNoAddress, "Host Address", MsgResult::OK);
        d.cmdOK_Click();
        EXPECT_EQ(d.focus, FrmSetup::Field::HostIP);
        d.cmdCancel_Click();
    });
    EXPECT_EQ(program->g.gPlayMode, 0) << "nothing was sent";
    for (const char* address : {"", "   "}) {
        openSetup([&](FrmSetup& d) {
            d.selectGameType(1);
            d.setText(d.txtRounds, "5");
            d.selectGame(2);
            d.setText(d.txtHostIP, address);
            host->expectMsgBox("Host IP field cannot be left blank.", "Required Field", MsgResult::OK);
            d.cmdOK_Click();
            EXPECT_EQ(d.focus, FrmSetup::Field::HostIP);
            d.cmdCancel_Click();
        });
    }
    openSetup([](FrmSetup& d) {
        d.selectGame(2);
        d.cmdOK_Click();
        EXPECT_FALSE(d.loaded());
    });
    EXPECT_EQ(program->g.gPlayMode, 2);
    EXPECT_EQ(program->g.gHostIP, "");
    EXPECT_EQ(f->Caption, "Petalgarden (Client)");
    EXPECT_TRUE(f->tmrWinsockState.Enabled());
}

TEST_F(Setup, RoundsAreCheckedOnlyForATournament) {
    openSetup([](FrmSetup& d) {
        d.selectGameType(1);
        d.setText(d.txtRounds, "50");
        d.selectGameType(0);
        EXPECT_FALSE(d.txtRounds.Enabled);
        d.cmdOK_Click();
    });
    EXPECT_EQ(settingsFile(), "0\r\n50\r\n-1\r\n0\r\n");
    EXPECT_FALSE(f->menu.mnuVScore.Enabled);
}

TEST_F(Setup, LeavingJoinEmptiesTheAddressAtOnceEvenOnCancel) {
    openSetup([](FrmSetup& d) {
        d.selectGame(2);
        d.setText(d.txtHostIP, "192.0.2.15");
        d.cmdOK_Click();
    });
    EXPECT_EQ(program->g.gHostIP, "192.0.2.15");
    openSetup([](FrmSetup& d) {
        EXPECT_EQ(d.txtHostIP.Text, "192.0.2.15");
        d.selectGame(0);
        EXPECT_EQ(d.txtHostIP.BackColor, FrmSetup::kGrey);
        d.cmdCancel_Click();
    });
    EXPECT_EQ(program->g.gHostIP, "");
    EXPECT_EQ(program->g.gPlayMode, 2) << "the cancelled dialog stored nothing";
}

TEST_F(Setup, ARunningGameAsksBeforeItIsReset) {
    f->dealer.imgDeck_Click();
    openSetup([](FrmSetup& d) { d.cmdCancel_Click(); });
    EXPECT_TRUE(host->shownBoxes().empty()) << "Cancel asks nothing";
    EXPECT_EQ(program->g.gGameInProgress, 1);

    const std::string before = settingsFile();
    const std::string question =
        "A game is already in session.  Saving the changes you made will reset the current game.  Do you want to proceed?";
    host->expectMsgBox(question, "Reset Game", MsgResult::No);
    openSetup([](FrmSetup& d) {
        d.selectGameType(1);
        d.setText(d.txtRounds, "5");
        d.cmdOK_Click();
    });
    EXPECT_EQ(settingsFile(), before) << "No saves nothing";
    EXPECT_EQ(program->g.gGameInProgress, 1);
    EXPECT_FALSE(program->g.gSetupCancelled) << "No still counts as OK for the menu";

    host->expectMsgBox(question, "Reset Game", MsgResult::Yes);
    openSetup([](FrmSetup& d) { d.cmdOK_Click(); });
    EXPECT_EQ(program->g.gGameInProgress, 0);
    EXPECT_FALSE(f->ctl.imgPCard[0].hasPicture());
    EXPECT_EQ(f->m.mTurn, 0);
}

// The computer to play against is ours: it is kept in the options file of our own, so that
// GARDENIA.ini keeps its four lines, and a restart finds it there. It is offered in single play.
TEST_F(Setup, TheComputerChosenIsKeptBesideTheSettingsAndOfferedInSinglePlay) {
    openSetup([](FrmSetup& d) {
        EXPECT_EQ(d.optComputer, (std::array<bool, 2>{true, false})) << "the standard computer is the default";
        d.selectComputer(1);
        d.cmdOK_Click();
    });
    EXPECT_EQ(settingsFile(), "0\r\n10\r\n-1\r\n0\r\n");
    EXPECT_EQ(fileText(dir.path() / "petalgarden-options.ini"), "computer=strong\n");
    restart();
    EXPECT_TRUE(f->computer.strong());
    openSetup([](FrmSetup& d) {
        EXPECT_EQ(d.optComputer, (std::array<bool, 2>{false, true}));
        EXPECT_TRUE(d.computerEnabled);
        d.selectGame(1);
        EXPECT_FALSE(d.computerEnabled) << "a network game has no computer";
        EXPECT_TRUE(d.routerPortEnabled && d.chkRouterPort == 0) << "a host may open the router's port, off at first";
        d.cmdCancel_Click();
    });
}

// OK and No while the computer was on turn used to hand the turn to the player in the middle of
// the computer's move: the deal ran past eight plays a side and never ended.
TEST_F(Setup, NoToTheResetLeavesTheComputersTurnAndTheDealEnds) {
    f->dealer.imgDeck_Click();
    sim::Policy policy(false, 0);
    for (int steps = 0; steps < 1'000 && !(f->m.mTurn == 1 && f->tmrComputer.Enabled()); ++steps)
        if (!sim::localMove(*f, policy)) {
            ASSERT_TRUE(host->step());
        }
    ASSERT_EQ(f->m.mTurn, 1);
    host->onMsgBox = [](const MsgBox& box) { return box.title == "Reset Game" ? MsgResult::No : MsgResult::OK; };
    openSetup([](FrmSetup& d) { d.cmdOK_Click(); });
    EXPECT_EQ(f->m.mTurn, 1);

    int ended = 0;
    host->onMsgBox = [&](const MsgBox& box) {
        ended += box.title == "Play Again?";
        return MsgResult::No;
    };
    host->onForm = [](Form& form) { dynamic_cast<FrmHOFWinner&>(form).cmdCancel_Click(); };
    for (int steps = 0; steps < 5'000 && !host->ending(); ++steps)
        if (!sim::localMove(*f, policy) && !host->step()) break;
    EXPECT_EQ(ended, 1) << "plays " << f->m.mPlayerPlays << "/" << f->m.mCompPlays;
}

}  // namespace
}  // namespace petal::test
