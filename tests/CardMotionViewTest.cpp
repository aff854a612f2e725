// Cards in flight, on the view's own clock held still: where a card is drawn at 0, 100 and
// 250 ms, the picture of one in flight, and a table that draws nothing while nothing moves.
#include <gtest/gtest.h>

#include <QTest>

#include "TableWindow.h"
#include "engine/table_view/TableView.h"

namespace petal::test {
namespace {

class CardMotionView : public ::testing::Test, protected TableWindow {
protected:
    CardMotionView() { window.table()->setClock([this] { return now; }); }
    QImage drawnAt(qint64 at) {
        now = at;
        return window.table()->grab().toImage();
    }
    // The colour at a point of the design (the table stands at its designed size).
    static QRgb colourAt(const QImage& image, QPointF design) { return image.pixel((design * image.devicePixelRatio()).toPoint()); }

    qint64 now = 0;
    TableModel& c = program.frmMain.ctl;
    const PictureId face = FrmCards::card(9).Picture;
};

// Played from the hand, a card travels to the table face up; turned from the deck, it leaves
// the deck face down and lands face up. Both are in flight at 100 ms and at rest by 250.
TEST_F(CardMotionView, ACardTravelsFromWhereItWasAndTurnsWhereItIsTurned) {
    struct Case {
        const char* move;
        Image* from;  // none: the card comes from the deck
        Image* to;
        bool startsFaceUp;
    };
    const Case cases[] = {{"from the hand to the table", &c.imgPCard[0], &c.imgTCard[5], true},
                          {"turned from the deck", nullptr, &c.imgFlipCard, false}};
    for (const Case& k : cases) {
        SCOPED_TRACE(k.move);
        if (k.from) {
            k.from->Picture = face;
            k.from->Tag = 9;
        }
        drawnAt(0);
        if (k.from) k.from->clearCard();
        k.to->Picture = face;
        k.to->Tag = 9;
        const QImage start = drawnAt(1000);  // the view's clock has gone on to the move
        const QRectF origin = TableScale::designRect(k.from ? *k.from : c.imgDeck, {});
        const QRectF target = TableScale::designRect(*k.to, {});
        const auto first = window.table()->motion().drawnAt(*k.to, 1000);
        ASSERT_TRUE(first);
        EXPECT_EQ(first->rect, origin);
        EXPECT_EQ(first->picture, k.startsFaceUp ? face : program.frmMain.m.mCardBack);
        EXPECT_TRUE(window.table()->animating());

        const QImage flying = drawnAt(1100);
        const auto middle = window.table()->motion().drawnAt(*k.to, 1100);
        ASSERT_TRUE(middle);
        EXPECT_EQ(middle->picture, face) << "past the middle of the way it shows its face";
        for (const auto& [a, b, at] : {std::tuple{origin.top(), target.top(), middle->rect.top()},
                                       std::tuple{origin.center().x(), target.center().x(), middle->rect.center().x()}}) {
            if (a == b) continue;
            EXPECT_GT(std::abs(at - a), 0.5 * std::abs(b - a)) << "more than half way";
            EXPECT_GT(std::abs(b - at), 1) << "not yet there";
        }
        const QPointF inFlight = middle->rect.center();
        EXPECT_NE(colourAt(flying, inFlight), colourAt(start, inFlight)) << "the card is drawn on its way";
        const QImage landed = drawnAt(1250);
        EXPECT_FALSE(window.table()->motion().drawnAt(*k.to, 1250));
        EXPECT_FALSE(window.table()->animating());
        if (k.from) {
            EXPECT_NE(colourAt(flying, target.center()), colourAt(landed, target.center()))
                << "the place where it lands stays empty until it lands";
            // For the review: the card over the empty table, between the hand and its slot.
            EXPECT_TRUE(flying.save(QStringLiteral(PETAL_BUILD_DIR "/card-in-flight.png")));
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
    window.table()->installEventFilter(&paints);
    drawnAt(0);
    c.imgFlipCard.Picture = face;
    drawnAt(0);
    ASSERT_TRUE(window.table()->animating());
    now = 1000;
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.table()->animating(); }, 1000));
    const int landed = paints.count;
    QTest::qWait(200);
    EXPECT_EQ(paints.count, landed) << "an idle table is redrawn";
    window.table()->removeEventFilter(&paints);

    program.frmMain.mnuAnimations_Click();
    c.imgFlipCard.clearCard();
    c.imgTCard[3].Picture = face;
    drawnAt(1000);
    EXPECT_FALSE(window.table()->motion().drawnAt(c.imgTCard[3], 1000));
    EXPECT_FALSE(window.table()->animating());
}

}  // namespace
}  // namespace petal::test
