// Cards in flight on the view's own clock, held still: where a card is drawn at 0, 100 and
// 250 ms, the picture of one in flight, and a table that draws nothing while nothing moves.
#include <gtest/gtest.h>

#include <QLineF>
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
    // The colour at a point of the design (the table stands at its designed size).
    static QRgb colourAt(const QImage& image, QPointF design) { return image.pixel((design * image.devicePixelRatio()).toPoint()); }

    qint64 now = 0;
    TableView* view = window.table();
    TableModel& c = program.frmMain.ctl;
    const PictureId face = FrmCards::card(9).Picture;
};

// Played from the hand, a card travels to the table face up; turned from the deck, it leaves
// the deck face down and lands face up.
TEST_F(CardMotionView, ACardTravelsFromWhereItWasAndTurnsWhereItIsTurned) {
    struct Case {
        const char* move;
        Image* from;  // none: the card comes from the deck
        Image* to;
    };
    for (const Case& k : {Case{"from the hand to the table", &c.imgPCard[0], &c.imgTCard[5]}, Case{"turned from the deck", nullptr, &c.imgFlipCard}}) {
        SCOPED_TRACE(k.move);
        if (k.from) k.from->Picture = face;
        drawnAt(0);
        if (k.from) k.from->clearCard();
        k.to->Picture = face;
        const QImage start = drawnAt(1000);  // the move, seen a second later
        const QRectF origin = TableScale::designRect(k.from ? *k.from : c.imgDeck, {});
        const QRectF target = TableScale::designRect(*k.to, {});
        const auto first = view->motion().drawnAt(*k.to, 1000);
        ASSERT_TRUE(first);
        EXPECT_EQ(first->rect, origin);
        EXPECT_EQ(first->picture, k.from ? face : program.frmMain.m.mCardBack);
        EXPECT_TRUE(view->animating());

        const QImage flying = drawnAt(1100);
        const auto middle = view->motion().drawnAt(*k.to, 1100);
        ASSERT_TRUE(middle);
        EXPECT_EQ(middle->picture, face) << "past the middle of the way it shows its face";
        const qreal way = QLineF(origin.center(), middle->rect.center()).length() / QLineF(origin.center(), target.center()).length();
        EXPECT_GT(way, 0.5);
        EXPECT_LT(way, 0.98);
        EXPECT_NE(colourAt(flying, middle->rect.center()), colourAt(start, middle->rect.center())) << "drawn on its way";

        const QImage landed = drawnAt(1250);
        EXPECT_FALSE(view->motion().drawnAt(*k.to, 1250));
        EXPECT_FALSE(view->animating());
        if (k.from) {
            EXPECT_NE(colourAt(flying, target.center()), colourAt(landed, target.center())) << "its place stays empty until it lands";
            EXPECT_TRUE(flying.save(QStringLiteral(PETAL_BUILD_DIR "/card-in-flight.png")));  // for review
        }
        k.to->clearCard();
        drawnAt(2000);
    }
}

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
