// The table scaled to 1x, 1.5x and 2x its designed size, offscreen: clicks and tool tips at the
// scaled places reach the controls there, and keys reach the same handlers.
#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QTest>
#include <QToolTip>

#include "TableWindow.h"
#include "cards/FrmCards.h"
#include "engine/table_view/TableView.h"

namespace petal::test {
namespace {

using Kind = TableFocus::Kind;
using Place = TableFocus::Place;

constexpr int kPineCrane = 0, kPlumWarbler = 4, kPineChaffA = 2, kCherryCurtain = 8;

class ScaledTable : public ::testing::TestWithParam<double>, protected TableWindow {
protected:
    void SetUp() override {
        const QSize wanted = (TableScale::designSize() * GetParam()).toSize();
        window.resize(window.size() + wanted - view->size());
        QTRY_COMPARE(view->size(), wanted);
        QTRY_VERIFY(view->settled());
    }
    void TearDown() override { program.g.gGameInProgress = 0; }  // so that closing asks nothing

    FrmMain& game() { return program.frmMain; }
    QRectF shown(const Control& c) const { return view->scale().map(TableScale::designRect(c, QPointF(0, 0))); }
    QPoint centre(const Control& c) const { return shown(c).center().toPoint(); }
    void click(const Control& c) { QTest::mouseClick(view, Qt::LeftButton, {}, centre(c)); }
    QString toolTipAt(QPoint at) {
        QHelpEvent help(QEvent::ToolTip, at, view->mapToGlobal(at));
        QApplication::sendEvent(view, &help);
        return QToolTip::text();
    }
    bool inLocalPiles(int catalogueIndex) const {
        const PictureId face = FrmCards::card(catalogueIndex + 1).Picture;
        for (const auto& row : program.frmMain.ctl.panel[0].piles)
            for (const Image& card : row)
                if (card.Picture == face) return true;
        return false;
    }

    TableView* view = window.table();
};

TEST_P(ScaledTable, ClicksAndToolTipsReachTheControlsAtTheirScaledPlaces) {
    ASSERT_NEAR(view->scale().factor(), GetParam(), 0.01);
    EXPECT_EQ(toolTipAt(centre(game().ctl.imgDeck)), "Click the deck to deal.");
    click(game().ctl.imgDeck);
    ASSERT_EQ(program.g.gGameInProgress, 1);

    dealWith(game(), {kPineCrane, kPlumWarbler}, {}, {kPineChaffA, kCherryCurtain});
    const TableModel& c = game().ctl;
    for (int i = 0; i < 8; ++i) {
        click(c.imgPCard[i]);
        EXPECT_EQ(c.shpPHilite.Tag, std::to_string(i)) << "hand card " << i;
        EXPECT_EQ(toolTipAt(centre(c.imgPCard[i])).toStdString(), c.imgPCard[i].ToolTipText);
        click(c.imgPCard[i]);  // undone again
        ASSERT_FALSE(c.shpPHilite.Visible);
    }
    // With nothing chosen a table card's handler refuses, and the keys go on from the card.
    for (int j = 0; j < 8; ++j) {
        click(c.imgTCard[j]);
        EXPECT_EQ(view->keys().focus().place(), (Place{Kind::Table, j})) << "table card " << j;
    }
    // A pixel inside the hand card's scaled edge is the card; one beyond it, where the design
    // leaves a gap to the next card, is not.
    const QRectF card = shown(c.imgPCard[0]);
    QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(int(card.right()) - 1, int(card.center().y())));
    EXPECT_TRUE(c.shpPHilite.Visible);
    QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(int(card.right()) + 1, int(card.center().y())));
    EXPECT_EQ(c.shpPHilite.Tag, "0") << "the gap is the form's: the choice stands";

    click(c.imgTCard[0]);  // the pine crane takes the pine chaff
    EXPECT_FALSE(c.imgPCard[0].hasPicture());
    EXPECT_TRUE(inLocalPiles(kPineChaffA));
}

// The keys reach the view through Qt's events: the mark shows, a digit chooses a card, Enter
// takes the framed card, and a key the table does not use goes on to the window.
TEST_P(ScaledTable, KeysGoThroughTheViewToTheSameHandlers) {
    click(game().ctl.imgDeck);
    dealWith(game(), {kPineCrane, kPlumWarbler}, {}, {kPineChaffA, kCherryCurtain});
    const TableModel& c = game().ctl;
    view->setFocus();
    QTest::keyClick(view, Qt::Key_1);
    EXPECT_TRUE(view->keys().markShown());
    EXPECT_EQ(c.shpPHilite.Tag, "0");
    EXPECT_EQ(view->keys().focus().place(), (Place{Kind::Table, 0}));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(view, &held);
    EXPECT_TRUE(c.imgPCard[0].hasPicture()) << "a held Enter uses nothing";
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_FALSE(c.imgPCard[0].hasPicture());
    EXPECT_TRUE(inLocalPiles(kPineChaffA));
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(view, &escape);
    EXPECT_FALSE(escape.isAccepted()) << "Escape with the yaku panel closed is not the table's";
}

INSTANTIATE_TEST_SUITE_P(Scales, ScaledTable, ::testing::Values(1.0, 1.5, 2.0),
                         [](const auto& info) { return "x" + std::to_string(int(info.param * 10)); });

// Run again on a screen of ratio 2 (QT_SCALE_FACTOR, with PETAL_SCREEN_DPR naming the ratio): the
// window's own pictures are then at 2x.
class ScaledTableScreen : public ::testing::Test, protected TableWindow {};

TEST_F(ScaledTableScreen, TheViewPaintsAtTheScreensRatio) {
    const QString expected = qEnvironmentVariable("PETAL_SCREEN_DPR");
    if (expected.isEmpty()) GTEST_SKIP() << "run by the suite on a screen of ratio 2";
    ASSERT_EQ(window.table()->devicePixelRatioF(), expected.toDouble());
    const QPixmap grabbed = window.table()->grab();
    EXPECT_EQ(grabbed.devicePixelRatio(), expected.toDouble());
    const QPixmap deck = pictures.latest(program.frmMain.ctl.imgDeck.Picture);
    EXPECT_EQ(deck.devicePixelRatio(), expected.toDouble());
    EXPECT_EQ(deck.deviceIndependentSize().toSize(), QSize(50, 80));
}

}  // namespace
}  // namespace petal::test
