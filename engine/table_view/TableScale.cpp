#include "engine/table_view/TableScale.h"

#include <algorithm>
#include <cmath>

#include "engine/table_view/TableModel.h"

namespace petal {

namespace {
constexpr qreal kTwipsPerPixel = 15.0;
}

QSizeF TableScale::designSize() {
    return QSizeF(TableModel::kClientWidth / kTwipsPerPixel, TableModel::kClientHeight / kTwipsPerPixel);
}

QRectF TableScale::designRect(const Control& c, QPointF origin) {
    return QRectF(origin.x() + c.Left / kTwipsPerPixel, origin.y() + c.Top / kTwipsPerPixel, c.Width / kTwipsPerPixel,
                  c.Height / kTwipsPerPixel);
}

TableScale::TableScale(QSizeF view, QSizeF design, qreal dpr)
    : view_(view), dpr_(dpr > 0 ? dpr : 1),
      factor_(std::min(view.width() / design.width(), view.height() / design.height())) {
    if (!(factor_ > 0)) factor_ = 1;
    offset_ = QPointF(snap((view.width() - design.width() * factor_) / 2),
                      snap((view.height() - design.height() * factor_) / 2));
}

qreal TableScale::snap(qreal length) const { return std::round(length * dpr_) / dpr_; }

QRectF TableScale::map(const QRectF& design) const {
    const qreal left = snap(offset_.x() + design.left() * factor_);
    const qreal top = snap(offset_.y() + design.top() * factor_);
    const qreal right = snap(offset_.x() + design.right() * factor_);
    const qreal bottom = snap(offset_.y() + design.bottom() * factor_);
    return QRectF(QPointF(left, top), QPointF(right, bottom));
}

QPointF TableScale::toDesign(QPointF view) const { return (view - offset_) / factor_; }

qreal TableScale::line(qreal design) const { return std::max<qreal>(1, std::round(design * factor_ * dpr_)) / dpr_; }

QRectF TableScale::cover(QSizeF aspect) const {
    const qreal k = std::max(view_.width() / aspect.width(), view_.height() / aspect.height());
    const QSizeF size = aspect * k;
    const QPointF corner((view_.width() - size.width()) / 2, (view_.height() - size.height()) / 2);
    return QRectF(QPointF(snap(corner.x()), snap(corner.y())), QPointF(snap(corner.x() + size.width()), snap(corner.y() + size.height())));
}

}  // namespace petal
