#include "engine/table_view/TablePainter.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "assets/PictureStore.h"
#include "platform/qt/Language.h"

namespace petal {

namespace {

QRectF designRect(const Control& c, QPointF origin) { return TableScale::designRect(c, origin); }

QColor fromBgr(std::uint32_t bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }

// The nearest fonts that Debian ships for the classic names, at the table's scale.
QFont fontFor(const FontSpec& style, qreal scale) {
    QFont font(style.family == "Times New Roman" ? QStringLiteral("Liberation Serif") : QStringLiteral("Liberation Sans"));
    font.setPointSizeF(style.points * scale);
    font.setBold(style.bold);
    return font;
}

}  // namespace

void TablePainter::paintBackground(PictureId picture, QSizeF viewSize) {
    if (picture == NoPicture) return;
    const PictureInfo& info = pictureInfo(picture);
    const QSizeF size(info.width, info.height);
    QRectF area = scale_.map(QRectF(QPointF(0, 0), size));
    if (!area.contains(QRectF(QPointF(0, 0), viewSize))) area = scale_.cover(size);
    paintPicture(picture, area);
}

void TablePainter::paintItems(const std::vector<TableView::Item>& list, QPointF origin) {
    for (const TableView::Item& item : list) {
        if (!item.control->Visible || std::find(hidden_.begin(), hidden_.end(), item.control) != hidden_.end()) continue;
        paintItem(item, origin);
        if (item.children.empty()) continue;
        const QRectF inner = designRect(*item.control, origin);
        painter_.save();
        painter_.setClipRect(scale_.map(inner));
        paintItems(item.children, inner.topLeft());
        painter_.restore();
    }
}

void TablePainter::paintItem(const TableView::Item& item, QPointF origin) {
    const QRectF area = scale_.map(designRect(*item.control, origin));
    switch (item.kind) {
        case TableView::Kind::Image: paintPicture(static_cast<const Image&>(*item.control).Picture, area); break;
        case TableView::Kind::Box: {
            const auto& box = static_cast<const PictureBox&>(*item.control);
            if (box.Picture != NoPicture) paintPicture(box.Picture, area);
            else paintPlainBox(area);
            break;
        }
        case TableView::Kind::Shape: paintShape(static_cast<const Shape&>(*item.control), area, item.target); break;
        case TableView::Kind::Label: paintLabel(static_cast<const Label&>(*item.control), area); break;
        case TableView::Kind::Button: paintButton(static_cast<const Button&>(*item.control), area); break;
    }
}

void TablePainter::paintPicture(PictureId picture, const QRectF& area) {
    if (picture == NoPicture || area.isEmpty()) return;
    if (interim_) {
        const QPixmap last = pictures_.latest(picture);
        if (!last.isNull()) {
            painter_.save();
            painter_.setRenderHint(QPainter::SmoothPixmapTransform);
            painter_.drawPixmap(area, last, QRectF(last.rect()));
            painter_.restore();
            return;
        }
    }
    painter_.drawPixmap(area.topLeft(), pictures_.pixmap(picture, area.size(), scale_.dpr()));
}

// The rendering of the card's resting place: copied pixel for pixel while the card keeps its
// size, scaled smoothly while it grows, shrinks or turns.
void TablePainter::paintFlight(const CardMotion::Drawn& card) {
    const QRectF rest = scale_.map(card.target);
    const QPixmap pixmap = pictures_.pixmap(card.picture, rest.size(), scale_.dpr());
    QRectF area = scale_.map(card.rect);
    const bool sameSize = card.rect.size() == card.target.size();
    if (sameSize) area.setSize(rest.size());
    const qreal radius = 3 * scale_.factor();
    painter_.save();
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(QColor(0, 0, 0, 70));
    painter_.drawRoundedRect(area.translated(2 * scale_.factor(), 3 * scale_.factor()), radius, radius);
    if (sameSize) {
        painter_.drawPixmap(area.topLeft(), pixmap);
    } else {
        painter_.setRenderHint(QPainter::SmoothPixmapTransform);
        painter_.drawPixmap(area, pixmap, QRectF(pixmap.rect()));
    }
    painter_.restore();
}

// The yaku panel has no picture: a lacquer plate with a gold rim, like the others.
void TablePainter::paintPlainBox(const QRectF& area) {
    const qreal rim = scale_.line(1.5);
    painter_.setPen(QPen(QColor(196, 160, 84), rim));
    painter_.setBrush(QColor(34, 24, 22, 240));
    painter_.drawRoundedRect(area.adjusted(rim / 2, rim / 2, -rim / 2, -rim / 2), 4 * scale_.factor(), 4 * scale_.factor());
}

// Colour is never the only sign: the opposite side's frames are dashed, a table card that can
// be taken carries a notch at its top, and the chosen hand card's frame is doubled.
void TablePainter::paintShape(const Shape& shape, const QRectF& area, TableView::Target frames) {
    const qreal w = scale_.line(shape.BorderWidth);
    const QColor colour = fromBgr(shape.BorderColor);
    const Qt::PenStyle style = shape.BorderColor == oppositeFrame_ ? Qt::DashLine : Qt::SolidLine;
    painter_.setPen(QPen(colour, w, style, Qt::SquareCap, Qt::MiterJoin));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(area.adjusted(w / 2, w / 2, -w / 2, -w / 2));
    if (frames == TableView::Target::PCard) {
        const qreal inner = w * 2.5;
        painter_.setPen(QPen(colour, w / 2, style, Qt::SquareCap, Qt::MiterJoin));
        painter_.drawRect(area.adjusted(inner, inner, -inner, -inner));
    }
    if (frames == TableView::Target::TCard) paintTakeSign(area, colour);
}

// A notch pointing down into the card from the middle of its top edge, outlined dark so that
// it reads on any face.
void TablePainter::paintTakeSign(const QRectF& area, const QColor& colour) {
    const qreal half = 10 * scale_.factor(), depth = 12 * scale_.factor();
    const QPointF top(area.center().x(), area.top());
    QPainterPath notch;
    notch.moveTo(top + QPointF(-half, 0));
    notch.lineTo(top + QPointF(half, 0));
    notch.lineTo(top + QPointF(0, depth));
    notch.closeSubpath();
    painter_.save();
    painter_.setPen(QPen(QColor(20, 16, 10, 220), scale_.line(1.5), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.setBrush(colour);
    painter_.drawPath(notch);
    painter_.restore();
}

void TablePainter::paintLabel(const Label& label, const QRectF& area) {
    painter_.setPen(fromBgr(label.ForeColor));
    painter_.setFont(fontFor(label.font, scale_.factor()));
    const Qt::Alignment align = label.alignment == Alignment::Center  ? Qt::AlignHCenter
                                : label.alignment == Alignment::Right ? Qt::AlignRight
                                                                      : Qt::AlignLeft;
    painter_.drawText(area, align | Qt::AlignVCenter, Language::core(label.Caption));
}

void TablePainter::paintButton(const Button& button, const QRectF& area) {
    const qreal edge = scale_.line(1);
    painter_.setPen(QPen(QColor(238, 216, 140), edge));
    painter_.setBrush(QColor(90, 24, 30));
    painter_.drawRoundedRect(area.adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2), 3 * scale_.factor(), 3 * scale_.factor());
    painter_.setFont(fontFor({"MS Sans Serif", 8, true}, scale_.factor()));
    painter_.drawText(area, Qt::AlignCenter, Language::core(button.Caption));
}

// A light ring with a dark edge, unlike the solid blue and red frames of the game, so that it
// reads on the green table and on a card's pale face alike. It straddles the card's edge: the
// cards stand two or three pixels apart.
void TablePainter::paintFocusMark(const Control& control) {
    const QRectF area = scale_.map(designRect(control, QPointF(0, 0)));
    const qreal radius = 3 * scale_.factor();
    painter_.save();
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(QPen(QColor(20, 16, 10, 200), scale_.line(4.5), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.drawRoundedRect(area, radius, radius);
    painter_.setPen(QPen(QColor(255, 236, 150), scale_.line(2.5), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.drawRoundedRect(area, radius, radius);
    painter_.restore();
}

}  // namespace petal

namespace petal {

// Green, which no frame of the game uses, and set a little outside the card, so that a selection
// frame or the keys' mark on the same card still shows; the star tells it from both at a glance.
void TablePainter::paintHintMark(const Control& control) {
    const qreal gap = scale_.line(3);
    const QRectF area = scale_.map(designRect(control, QPointF(0, 0))).adjusted(-gap, -gap, gap, gap);
    const qreal radius = 4 * scale_.factor();
    const QColor dark(20, 16, 10, 210), green(120, 226, 84);
    painter_.save();
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(QPen(dark, scale_.line(6), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.drawRoundedRect(area, radius, radius);
    painter_.setPen(QPen(green, scale_.line(3.5), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.drawRoundedRect(area, radius, radius);
    const qreal r = 8 * scale_.factor();
    const QPointF centre = area.topRight() + QPointF(-r * 0.4, r * 0.4);
    painter_.setPen(QPen(dark, scale_.line(1.5)));
    painter_.setBrush(green);
    painter_.drawEllipse(centre, r, r);
    QPainterPath star;
    for (int i = 0; i < 10; ++i) {
        const qreal angle = -M_PI / 2 + i * M_PI / 5;
        const qreal reach = (i % 2 ? 0.38 : 0.8) * r;
        const QPointF point = centre + QPointF(std::cos(angle) * reach, std::sin(angle) * reach);
        if (i == 0) star.moveTo(point);
        else star.lineTo(point);
    }
    star.closeSubpath();
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(QColor(255, 255, 240));
    painter_.drawPath(star);
    painter_.restore();
}

}  // namespace petal
