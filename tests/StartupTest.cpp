// Start-up state, the menus as the settings leave them, and the paths of closing the window.
#include "GameFixture.h"

namespace petal::test {
namespace {

class Startup : public GameFixture {
protected:
    void SetUp() override { start(); }
};

TEST_F(Startup, TheTableStandsEmptyWithItsStartingPictures) {
    EXPECT_EQ(program->g.gGameInProgress, 0);
    EXPECT_EQ(program->g.gYakuCodes[0], "11");
    EXPECT_EQ(program->g.gYakuCodes[23], "83");
    EXPECT_EQ(f->m.mHiliteColor[0], 0xFF0000u);
    EXPECT_EQ(f->m.mHiliteColor[1], 0x0000FFu);
    EXPECT_EQ(f->m.mCardBack, pic::CardBack);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(f->ctl.imgCCard[i].Picture, pic::CardBack);
        EXPECT_FALSE(f->ctl.imgPCard[i].hasPicture());
        EXPECT_FALSE(f->ctl.imgTCard[i].hasPicture());
    }
    EXPECT_EQ(f->ctl.imgPYaku[5].Picture, pic::thumbGrey(5));
    EXPECT_FALSE(f->ctl.panel[0].imgTurn.Visible);
    EXPECT_FALSE(f->ctl.panel[1].imgTurn.Visible);
    EXPECT_FALSE(f->menu.mnuVScore.Enabled);  // a single game by default
    EXPECT_FALSE(f->menu.mnuVChat.Enabled);
    EXPECT_TRUE(f->menu.mnuSetup.Enabled);
    EXPECT_EQ(f->helpFile, (dir.path() / "PetalgardenHelp.html").string());
}

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

TEST_F(Startup, MovingTheMouseTakesAwayOnlyTheHand) {
    dealWith({}, {}, {});
    f->yaku.imgPYaku_MouseMove(0);
    EXPECT_EQ(f->MousePointer(), FrmMain::kPointerHand);
    f->Picture1_MouseMove();
    EXPECT_EQ(f->MousePointer(), FrmMain::kPointerDefault);
    f->setMousePointer(FrmMain::kPointerHourglass);
    f->yaku.imgPYaku_MouseMove(0);  // the hand never replaces the hourglass
    f->imgPCard_MouseMove();
    f->Form_MouseMove();
    EXPECT_EQ(f->MousePointer(), FrmMain::kPointerHourglass);
}

}  // namespace
}  // namespace petal::test
