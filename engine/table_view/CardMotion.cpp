#include "engine/table_view/CardMotion.h"

#include <QLineF>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "cards/MainVars.h"
#include "engine/table_view/TableModel.h"
#include "engine/table_view/TableScale.h"

namespace petal {

namespace {

// Longer ways take a little longer, within the bounds: about 180 ms from the hand to the table.
int durationFor(const QRectF& from, const QRectF& to) {
    const qreal way = QLineF(from.center(), to.center()).length();
    return std::clamp(CardMotion::kShortestMs + static_cast<int>(way / 5), CardMotion::kShortestMs, CardMotion::kLongestMs);
}

QRectF between(const QRectF& a, const QRectF& b, qreal k) {
    return QRectF(a.x() + (b.x() - a.x()) * k, a.y() + (b.y() - a.y()) * k, a.width() + (b.width() - a.width()) * k,
                  a.height() + (b.height() - a.height()) * k);
}

void add(std::vector<CardMotion::Place>& list, const Image& image, PictureId face, bool faceUp, QPointF origin = {}) {
    list.push_back({&image, face, faceUp, TableScale::designRect(image, origin)});
}

void addFaceUp(std::vector<CardMotion::Place>& list, const Image& image, QPointF origin = {}) {
    if (image.Visible && image.hasPicture()) add(list, image, image.Picture, true, origin);
}

}  // namespace

std::vector<CardMotion::Place> CardMotion::places(const TableModel& c, const MainVars& m) {
    std::vector<Place> list;
    for (std::size_t i = 0; i < c.imgTCard.size(); ++i) {
        if (i < 8) {
            addFaceUp(list, c.imgPCard[i]);
            // The opposite hand shows backs; each is known by the card that its Tag names.
            const Image& theirs = c.imgCCard[i];
            const long position = theirs.Tag.value();
            if (theirs.Visible && theirs.hasPicture() && theirs.Picture != m.mCardBack) addFaceUp(list, theirs);
            else if (theirs.Visible && theirs.hasPicture() && position >= 0 && position < 48)
                add(list, theirs, m.mCards[position].Picture, false);
        }
        addFaceUp(list, c.imgTCard[i]);
    }
    addFaceUp(list, c.imgFlipCard);
    for (const ScorePanel& panel : c.panel) {
        if (!panel.box.Visible) continue;
        const QPointF origin = TableScale::designRect(panel.box, {}).topLeft();
        for (const auto& row : panel.piles)
            for (const Image& card : row) addFaceUp(list, card, origin);
    }
    return list;
}

void CardMotion::reset() {
    last_.clear();
    flights_.clear();
    primed_ = false;
}

void CardMotion::follow(const std::vector<Place>& now, qint64 at, bool newDeal, const QRectF& deck, PictureId back) {
    std::erase_if(flights_, [at](const Flight& f) { return at >= f.start + f.duration; });
    if (!primed_) {
        last_ = now;
        primed_ = true;
        return;
    }
    int dealt = 0;
    std::vector<Flight> started;
    for (const Place& place : now) {
        const auto was = newDeal ? last_.end() : std::find_if(last_.begin(), last_.end(), [&](const Place& p) {
            return p.face == place.face;
        });
        if (was == last_.end()) {
            const qint64 start = at + kDealStepMs * dealt++;
            started.push_back({place, deck, false, back, start, durationFor(deck, place.rect)});
            continue;
        }
        if (was->rect == place.rect && was->faceUp == place.faceUp) continue;
        // A card sent on mid-flight leaves from where it is drawn now.
        Flight flight{place, was->rect, was->faceUp, back, at, 0};
        if (const Flight* flying = flightOf(place.face)) {
            const qreal k = progress(*flying, at);
            flight.from = between(flying->from, flying->to.rect, k);
            flight.fromFaceUp = showsFace(*flying, k);
        }
        flight.duration = durationFor(flight.from, place.rect);
        started.push_back(flight);
    }
    std::erase_if(flights_, [&](const Flight& f) {
        return newDeal || std::any_of(started.begin(), started.end(), [&](const Flight& s) { return s.to.face == f.to.face; }) ||
               std::none_of(now.begin(), now.end(), [&](const Place& p) { return p.face == f.to.face; });
    });
    // A pile row that grows moves its cards in memory: a flight keeps to its card's control as
    // the table holds it now.
    for (Flight& f : flights_)
        for (const Place& p : now)
            if (p.face == f.to.face) f.to.control = p.control;
    flights_.insert(flights_.end(), started.begin(), started.end());
    last_ = now;
}

const CardMotion::Flight* CardMotion::flightOf(PictureId face) const {
    const auto found = std::find_if(flights_.begin(), flights_.end(), [face](const Flight& f) { return f.to.face == face; });
    return found == flights_.end() ? nullptr : &*found;
}

// The share of the way covered: quick to leave and gentle to land, as a card slid across cloth.
qreal CardMotion::progress(const Flight& f, qint64 at) {
    const qreal t = std::clamp<qreal>(qreal(at - f.start) / f.duration, 0, 1);
    return 1 - (1 - t) * (1 - t);
}

// A card that turns shows its edge at the middle of the way.
bool CardMotion::showsFace(const Flight& f, qreal k) { return f.fromFaceUp == f.to.faceUp || k >= 0.5 ? f.to.faceUp : f.fromFaceUp; }

CardMotion::Drawn CardMotion::drawnOf(const Flight& f, qint64 at) const {
    const qreal k = progress(f, at);
    QRectF rect = between(f.from, f.to.rect, k);
    if (f.fromFaceUp != f.to.faceUp) {
        const qreal width = rect.width() * std::abs(std::cos(std::numbers::pi * k));
        rect = QRectF(rect.center().x() - width / 2, rect.y(), width, rect.height());
    }
    return {f.to.control, showsFace(f, k) ? f.to.face : f.back, rect, f.to.rect};
}

bool CardMotion::moving(qint64 at) const {
    return std::any_of(flights_.begin(), flights_.end(), [at](const Flight& f) { return at < f.start + f.duration; });
}

std::vector<CardMotion::Drawn> CardMotion::drawn(qint64 at) const {
    std::vector<Drawn> list;
    for (const Flight& f : flights_)
        if (at < f.start + f.duration) list.push_back(drawnOf(f, at));
    return list;
}

std::optional<CardMotion::Drawn> CardMotion::drawnAt(const Control& control, qint64 at) const {
    for (const Flight& f : flights_)
        if (f.to.control == &control && at < f.start + f.duration) return drawnOf(f, at);
    return std::nullopt;
}

std::vector<const Control*> CardMotion::covered(const TableModel& c, qint64 at) const {
    std::vector<const Control*> list;
    for (const Drawn& d : drawn(at)) {
        list.push_back(d.control);
        if (d.control == &c.imgFlipCard) list.push_back(&c.shpFlipCard);
        for (std::size_t i = 0; i < c.imgTCard.size(); ++i)
            if (d.control == &c.imgTCard[i]) list.push_back(&c.shpTHilite[i]);
        // The wild card's marker lies over the pile card that it marks.
        for (const ScorePanel& panel : c.panel) {
            const Control& marker = panel.imgGagi;
            if (marker.parent == d.control->parent && marker.Left == d.control->Left && marker.Top == d.control->Top)
                list.push_back(&marker);
        }
    }
    return list;
}

}  // namespace petal
