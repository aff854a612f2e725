#pragma once
// Draws the table model and forwards clicks, mouse moves and tool tips to the game's handlers.
#include <QWidget>
#include <vector>

#include "engine/table_view/Controls.h"

namespace petal {

class FrmMain;
class PictureStore;
class QtHost;

class TableView : public QWidget {
    Q_OBJECT
public:
    TableView(FrmMain& game, QtHost& host, PictureStore& pictures, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    // The table beside the score panels, in screen pixels.
    QRect tableArea() const;
    void applyMousePointer(int pointer);

    // What a control answers to; None for controls without handlers.
    enum class Target { None, PCard, TCard, Table, Deck, PYaku, Pile00, Picture1, Picture2, YakuPanel, YakuShow, YakuClose };
    enum class Kind { Image, Shape, Label, Box, Button };
    struct Item {
        const Control* control;
        Kind kind;
        Target target;
        int index;
        std::vector<Item> children;  // for the panels
    };

    // Every control in drawing order (back to front), panels with their children.
    std::vector<Item> items() const;
    // The control that a point (in pixels) falls on, topmost first; nullptr for the form.
    const Item* hitTest(QPointF point, const std::vector<Item>& all, QPointF* origin = nullptr) const;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    bool event(QEvent*) override;

private:
    void paintItems(class QPainter& painter, const std::vector<Item>& list, QPointF origin);
    void paintItem(class QPainter& painter, const Item& item, QPointF origin);
    void click(const Item& item);
    void mouseMoved(const Item* item);

    FrmMain& game_;
    QtHost& host_;
    PictureStore& pictures_;
    Target pressed_ = Target::None;
    int pressedIndex_ = -1;
};

}  // namespace petal
