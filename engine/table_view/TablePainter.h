#pragma once
// Paints the table's controls at the view's scale. Pictures come from the store rendered at the
// size they fill in device pixels; shapes, labels and buttons are drawn as vectors at that scale.
#include <vector>

#include "engine/table_view/CardMotion.h"
#include "engine/table_view/TableScale.h"
#include "engine/table_view/TableView.h"

class QPainter;

namespace petal {

class PictureStore;

class TablePainter {
public:
    // interim: the view is being resized, so the last rendering of each picture is stretched
    // rather than a new one made for a size that will not last.
    TablePainter(QPainter& painter, PictureStore& pictures, const TableScale& scale, bool interim)
        : painter_(painter), pictures_(pictures), scale_(scale), interim_(interim) {}

    // The form's picture: at the table's scale where it covers the view, else covering it.
    void paintBackground(PictureId picture, QSizeF viewSize);
    // Controls left out of paintItems: where a card in flight is yet to land.
    void setHidden(std::vector<const Control*> hidden) { hidden_ = std::move(hidden); }
    // The colour of the opposite side's frames, which are dashed so that a player who cannot
    // tell the two colours apart still sees whose they are.
    void setOppositeFrame(std::uint32_t bgr) { oppositeFrame_ = bgr; }
    // Every visible item, back to front; the children of a panel clipped to it.
    void paintItems(const std::vector<TableView::Item>& list, QPointF origin);
    // A card in flight, above everything, with a soft shadow under it.
    void paintFlight(const CardMotion::Drawn& card);
    // The mark of the place where the keys act, around a control of the form.
    void paintFocusMark(const Control& control);
    // The hint's mark on a card of the form: a green ring with a star at its corner.
    void paintHintMark(const Control& control);

private:
    void paintItem(const TableView::Item& item, QPointF origin);
    void paintPicture(PictureId picture, const QRectF& area);
    void paintShape(const Shape& shape, const QRectF& area, TableView::Target frames);
    void paintTakeSign(const QRectF& area, const QColor& colour);
    void paintLabel(const Label& label, const QRectF& area);
    void paintButton(const Button& button, const QRectF& area);
    void paintPlainBox(const QRectF& area);

    QPainter& painter_;
    PictureStore& pictures_;
    const TableScale& scale_;
    bool interim_;
    std::vector<const Control*> hidden_;
    std::uint32_t oppositeFrame_ = 0;
};

}  // namespace petal
