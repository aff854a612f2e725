#pragma once
// Where the designed table stands in the view: one uniform scale, the table centred. The game
// and the hit tests work in design pixels (15 twips each); only the view knows this scale.
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include "engine/table_view/Controls.h"

namespace petal {

class TableScale {
public:
    // The designed table in design pixels, and a control's rectangle there, inside a container
    // whose corner stands at origin.
    static QSizeF designSize();
    static QRectF designRect(const Control& c, QPointF origin);

    // The design fitted whole into a view of this size, on a screen of this pixel ratio.
    TableScale(QSizeF view, QSizeF design, qreal dpr);

    qreal factor() const { return factor_; }
    qreal dpr() const { return dpr_; }
    // A rectangle of the design in the view, its edges on whole device pixels, so that a picture
    // rendered at its size is copied pixel for pixel.
    QRectF map(const QRectF& design) const;
    QPointF toDesign(QPointF view) const;
    // A line width of the design in the view, a whole number of device pixels, at least one.
    qreal line(qreal design) const;
    // The rectangle of the given aspect that covers the whole view, centred on it.
    QRectF cover(QSizeF aspect) const;

private:
    qreal snap(qreal length) const;

    QSizeF view_;
    qreal dpr_;
    qreal factor_;
    QPointF offset_;
};

}  // namespace petal
