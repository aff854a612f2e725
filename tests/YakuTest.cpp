// Yaku: counting by group, the thumbnails, dead and complete groups with their asymmetry,
// the sounds, and the panel that shows a group at full size.
#include "GameFixture.h"
#include "cards/FrmCards.h"

namespace petal::test {
namespace {

// Catalogue indices of yaku cards.
constexpr int kBoarTwoGroups = 24, kCloverRibbon = 25, kWisteriaRibbon = 13, kIrisRibbon = 17;
constexpr int kDeer = 36, kGeese = 29, kPeonyButterfly = 20, kSakeCup = 32, kMoon = 28, kCurtain = 8;
constexpr int kWisteriaCuckoo = 12, kIrisBridge = 16;

class Yaku : public GameFixture {
protected:
    void SetUp() override {
        start();
        dealWith({}, {}, {});
    }
    // Enters the card with this catalogue index for a side, as a capture does.
    void take(int side, int index) {
        const int saved = f->m.mTurn;
        f->m.mTurn = side;
        for (int p = 0; p < 48; ++p)
            if (f->m.mCards[p].Index == index) f->yaku.ShowYaku(p);
        f->yaku.CountYakus();
        f->m.mTurn = saved;
    }
    std::vector<PictureId> row(const std::array<Image, 24>& thumbs, int group) const {
        return {thumbs[group * 3].Picture, thumbs[group * 3 + 1].Picture, thumbs[group * 3 + 2].Picture};
    }
};

TEST_F(Yaku, AThreeCardGroupCompletesLightsFiftyAndScores) {
    take(0, kCloverRibbon);
    EXPECT_EQ(f->ctl.imgPYaku[0].Picture, pic::thumbColour(0));
    EXPECT_EQ(f->ctl.imgPYaku[0].Tag, "25") << "the panel now shows the won card in colour";
    take(0, kWisteriaRibbon);
    take(0, kIrisRibbon);
    EXPECT_EQ(f->m.mYakuCards[0][0], 3);
    EXPECT_TRUE(f->ctl.lblPYaku[0].Visible);
    EXPECT_EQ(f->m.mYakuCount[0], 1);
    EXPECT_EQ(f->lastSound(), (dir.path() / "pyaku1.wav").string());
    // The local player's own row stays in colour; only the opposite row turns to backs.
    EXPECT_EQ(row(f->ctl.imgPYaku, 0), (std::vector<PictureId>{pic::thumbColour(0), pic::thumbColour(1), pic::thumbColour(2)}));
    EXPECT_EQ(row(f->ctl.imgCYaku, 0), std::vector<PictureId>(3, pic::ThumbBack));
    EXPECT_TRUE(f->ctl.imgPYaku[0].Enabled);
    f->piles.CalcPlayerPoints();
    EXPECT_EQ(f->ctl.panel[0].lblPointsTotal[3].Caption, "50");
}

TEST_F(Yaku, TheOppositeSidesCompletionDeadensThePlayersThumbnails) {
    take(1, kCloverRibbon);
    take(1, kWisteriaRibbon);
    take(1, kIrisRibbon);
    EXPECT_TRUE(f->ctl.lblCYaku[0].Visible);
    EXPECT_EQ(row(f->ctl.imgPYaku, 0), std::vector<PictureId>(3, pic::ThumbBack));
    EXPECT_FALSE(f->ctl.imgPYaku[1].Enabled);
    EXPECT_EQ(f->ctl.imgCYaku[1].Picture, pic::thumbColour(1));
    EXPECT_EQ(f->lastSound(), (dir.path() / "cyaku1.wav").string());
    f->yaku.imgPYaku_MouseMove(1);
    EXPECT_EQ(f->MousePointer(), FrmMain::kPointerDefault);
}

TEST_F(Yaku, OneCardOnEachSideKillsAGroup) {
    take(0, kCloverRibbon);
    take(1, kWisteriaRibbon);
    EXPECT_EQ(row(f->ctl.imgPYaku, 0), std::vector<PictureId>(3, pic::ThumbBack));
    EXPECT_EQ(row(f->ctl.imgCYaku, 0), std::vector<PictureId>(3, pic::ThumbBack));
    EXPECT_FALSE(f->ctl.imgPYaku[0].Enabled);
    take(0, kIrisRibbon);
    EXPECT_FALSE(f->ctl.lblPYaku[0].Visible);
}

TEST_F(Yaku, ATwoGroupCardAdvancesBothAndCanCompleteOneWhileKillingTheOther) {
    take(1, kDeer);       // groups 3 and 5 for the opposite side
    take(0, kGeese);      // group 3: now dead
    take(0, kPeonyButterfly);
    take(0, kSakeCup);    // group 5 at two, group 6 at one
    take(0, kMoon);
    take(0, kCurtain);    // completes group 6 and advances group 8
    EXPECT_EQ(f->m.mYakuCards[0][5], 3);
    EXPECT_EQ(f->m.mYakuCards[0][7], 1);
    EXPECT_EQ(f->m.mYakuCards[0][2], 1);
    EXPECT_EQ(f->m.mYakuCards[1][2], 1);
    EXPECT_EQ(f->m.mYakuCards[0][4], 2);
    EXPECT_EQ(f->m.mYakuCards[1][4], 1);
    EXPECT_TRUE(f->ctl.lblPYaku[5].Visible);

    // The boar stands in groups 2 and 3: it completes group 2 and adds to the dead group 3.
    take(0, kWisteriaCuckoo);
    take(0, kIrisBridge);
    take(0, kBoarTwoGroups);
    EXPECT_EQ(f->m.mYakuCards[0][1], 3);
    EXPECT_EQ(f->m.mYakuCards[0][2], 2);
    EXPECT_EQ(f->m.mYakuCount[0], 2);
    EXPECT_EQ(f->lastSound(), (dir.path() / "pyaku2.wav").string());
}

// The sake cup stands in groups 5 and 6: with two of group 5 held and the moon with the opposite
// side, one capture completes group 5 and kills group 6.
TEST_F(Yaku, OneCaptureCanCompleteOneGroupAndKillAnother) {
    take(0, kPeonyButterfly);
    take(0, kDeer);  // also group 3
    take(1, kMoon);
    take(0, kSakeCup);
    EXPECT_EQ(f->m.mYakuCards[0][4], 3);
    EXPECT_TRUE(f->ctl.lblPYaku[4].Visible);
    EXPECT_EQ(row(f->ctl.imgCYaku, 4), std::vector<PictureId>(3, pic::ThumbBack)) << "complete: the opposite row goes";
    EXPECT_EQ(row(f->ctl.imgPYaku, 5), std::vector<PictureId>(3, pic::ThumbBack)) << "dead on both sides";
    EXPECT_EQ(row(f->ctl.imgCYaku, 5), std::vector<PictureId>(3, pic::ThumbBack));
    EXPECT_FALSE(f->ctl.lblPYaku[5].Visible);
    EXPECT_EQ(f->m.mYakuCount[0], 1);
    EXPECT_EQ(f->lastSound(), (dir.path() / "pyaku1.wav").string());
}

TEST_F(Yaku, TwoGroupsCompletedAtOnceAskForTheSecondSoundOnly) {
    f->m.mYakuCards[0] = {3, 3, 0, 0, 0, 0, 0, 0};
    f->yaku.CountYakus();
    EXPECT_EQ(f->lastSound(), (dir.path() / "pyaku2.wav").string());
    f->m.mYakuCards[0] = {3, 3, 3, 3, 3, 0, 0, 0};
    f->PlaySound("");
    f->yaku.CountYakus();
    EXPECT_EQ(f->lastSound(), "") << "a fifth yaku has no sound";
    EXPECT_EQ(f->m.mYakuCount[0], 5);
}

TEST_F(Yaku, ThePanelShowsAGroupGreyUntilWonAndStaysOpenAcrossNewGame) {
    f->yaku.imgPYaku_Click(4);
    EXPECT_TRUE(f->ctl.picYakuShow.Visible);
    EXPECT_EQ(f->ctl.picYakuShow.Tag, "3");
    EXPECT_EQ(f->ctl.imgYakuShow[0].Picture, pic::card(51));
    take(0, kWisteriaCuckoo);
    EXPECT_EQ(f->ctl.imgYakuShow[1].Picture, pic::card(kWisteriaCuckoo)) << "an open panel shows the capture at once";
    take(1, kIrisBridge);
    EXPECT_EQ(f->ctl.imgYakuShow[2].Picture, pic::card(53)) << "the opposite side's captures stay grey";
    f->dealer.NewGame(false);
    EXPECT_TRUE(f->ctl.picYakuShow.Visible);
    EXPECT_EQ(f->ctl.imgYakuShow[1].Picture, pic::card(52));
    f->yaku.cmdYakuClose_Click();
    EXPECT_FALSE(f->ctl.picYakuShow.Visible);
}

TEST_F(Yaku, WithoutYakuNothingIsShownOrCounted) {
    f->settings.WriteSettings(0, 10, 0, 0);
    f->dealer.NewGame(false);
    f->yaku.imgPYaku_Click(0);
    EXPECT_FALSE(f->ctl.picYakuShow.Visible);
    f->m.mTurn = 0;
    f->yaku.CountYakus();
    EXPECT_EQ(f->m.mYakuCount[0], 0);
    EXPECT_EQ(f->lastSound(), "");
}

}  // namespace
}  // namespace petal::test
