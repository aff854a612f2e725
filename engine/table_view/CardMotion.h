#pragma once
// The flights of the cards across the table. The game moves a card from one control to another
// at once; the view follows it: a card found elsewhere than at the last look travels there from
// where it was drawn, and turns over on the way if it shows its other side. Times are
// milliseconds of the view's clock, given by the caller, so that a test can hold it still.
#include <QRectF>
#include <optional>
#include <vector>

#include "assets/Pictures.h"

namespace petal {

struct Control;
struct MainVars;
struct TableModel;

class CardMotion {
public:
    // A card at rest: the control that holds it, the card (its face), the side it shows, and
    // its rectangle on the form in design pixels.
    struct Place {
        const Control* control;
        PictureId face;
        bool faceUp;
        QRectF rect;
    };
    // A card in flight as it is drawn at a moment.
    struct Drawn {
        const Control* control;  // where it comes to rest
        PictureId picture;       // the face or the back, whichever shows now
        QRectF rect;             // design pixels, narrowed about its middle while it turns
        QRectF target;           // where it comes to rest
    };

    static constexpr int kShortestMs = 150;
    static constexpr int kLongestMs = 250;
    // Cards of a deal leave the deck one after the other, this far apart.
    static constexpr int kDealStepMs = 25;

    // Every card that the table shows, in the order of a deal: hand, opposite hand and table
    // slot by slot, then the rest of the table, the flipped card and the piles.
    static std::vector<Place> places(const TableModel& table, const MainVars& m);

    // The table as it stands at `now`. A card in a new place flies there from where it was
    // drawn; cards that had no place (all of them after a new deal) come from the deck, face
    // down, one after the other. The first look after a reset only notes where cards stand.
    void follow(const std::vector<Place>& now, qint64 at, bool newDeal, const QRectF& deck, PictureId back);
    void reset();

    bool moving(qint64 at) const;
    std::vector<Drawn> drawn(qint64 at) const;
    // The card that flies to this control, as drawn at `at`; nothing once it has landed.
    std::optional<Drawn> drawnAt(const Control& control, qint64 at) const;
    // What is not drawn at rest while a card flies: the controls that it lands on, with their
    // frames and any marker laid over them.
    std::vector<const Control*> covered(const TableModel& table, qint64 at) const;

private:
    struct Flight {
        Place to;
        QRectF from;
        bool fromFaceUp;
        PictureId back;
        qint64 start;
        int duration;
    };
    static qreal progress(const Flight& flight, qint64 at);
    static bool showsFace(const Flight& flight, qreal progress);
    Drawn drawnOf(const Flight& flight, qint64 at) const;
    const Flight* flightOf(PictureId face) const;

    std::vector<Place> last_;
    std::vector<Flight> flights_;
    bool primed_ = false;
};

}  // namespace petal
