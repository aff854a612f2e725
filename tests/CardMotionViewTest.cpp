// Cards in flight on the view's own clock, held still: a table that draws nothing while nothing
// moves, and cards that jump with the animations off.
#include <gtest/gtest.h>

#include <QTest>

#include "TableWindow.h"
#include "engine/table_view/TableView.h"

namespace petal::test {
namespace {

class CardMotionView : public ::testing::Test, protected TableWindow {
protected:
    CardMotionView() { view->setClock([this] { return now; }); }
    QImage drawnAt(qint64 at) {
        now = at;
        return view->grab().toImage();
    }

    qint64 now = 0;
    TableView* view = window.table();
    TableModel& c = program.frmMain.ctl;
    const PictureId face = FrmCards::card(9).Picture;
};

// Once the last card has landed nothing is drawn until something changes; with Game >
// Animations unchecked a card jumps.
TEST_F(CardMotionView, AStillTableDrawsNothingAndUncheckedAnimationsJump) {
    struct Paints : QObject {
        int count = 0;
        bool eventFilter(QObject*, QEvent* event) override {
            count += event->type() == QEvent::Paint;
            return false;
        }
    } paints;
    view->installEventFilter(&paints);
    drawnAt(0);
    c.imgFlipCard.Picture = face;
    drawnAt(0);
    ASSERT_TRUE(view->animating());
    now = 1000;
    EXPECT_TRUE(QTest::qWaitFor([&] { return !view->animating(); }, 1000));
    const int landed = paints.count;
    QTest::qWait(200);
    EXPECT_EQ(paints.count, landed) << "an idle table is redrawn";
    view->removeEventFilter(&paints);

    program.frmMain.mnuAnimations_Click();
    c.imgFlipCard.clearCard();
    c.imgTCard[3].Picture = face;
    drawnAt(1000);
    EXPECT_FALSE(view->motion().drawnAt(c.imgTCard[3], 1000));
    EXPECT_FALSE(view->animating());
}

}  // namespace
}  // namespace petal::test
