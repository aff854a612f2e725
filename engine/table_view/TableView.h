#pragma once
// Draws the table model at any size, one picture scaled uniformly and centred, and forwards
// clicks, keys, mouse moves and tool tips to the game's handlers. The game knows nothing of
// the scale: hit tests work in design pixels (15 twips each).
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

#include "engine/table_view/CardMotion.h"
#include "engine/table_view/Controls.h"
#include "engine/table_view/TableKeys.h"
#include "engine/table_view/TableScale.h"

namespace petal {

class FrmMain;
class PictureStore;
class QtHost;

class TableView : public QWidget {
    Q_OBJECT
public:
    TableView(FrmMain& game, QtHost& host, PictureStore& pictures, QWidget* parent = nullptr);

    // The designed size is the default; half of it is the least.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // The table beside the score panels, in screen pixels, as it stands scaled.
    QRect tableArea() const;
    void applyMousePointer(int pointer);
    // The design in the view as it is now.
    TableScale scale() const;

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
    // The control that a point (in design pixels) falls on, topmost first; nullptr for the form.
    const Item* hitTest(QPointF point, const std::vector<Item>& all, QPointF* origin = nullptr) const;

    // The keys of the table and their mark, which shows from the first key until the next click.
    const TableKeys& keys() const { return keys_; }
    // Whether the pictures stand rendered at the view's size (not in the midst of a resize).
    bool settled() const { return !settle_.isActive(); }

    // The clock of the cards' flights, in milliseconds; a test sets its own.
    void setClock(std::function<qint64()> clock) { clock_ = std::move(clock); }
    qint64 now() const { return clock_(); }
    const CardMotion& motion() const { return motion_; }
    // Frames are being drawn for cards in flight; none are while nothing moves.
    bool animating() const { return frames_.isActive(); }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    bool event(QEvent*) override;

private:
    const Item* itemAt(QPointF viewPoint, const std::vector<Item>& all) const;
    void followModel(qint64 now);
    void mouseMoved(const Item* item);

    FrmMain& game_;
    QtHost& host_;
    PictureStore& pictures_;
    TableKeys keys_;
    QTimer settle_;
    CardMotion motion_;
    QTimer frames_;
    QElapsedTimer started_;
    std::function<qint64()> clock_;
    int dealSerial_ = -1;
    Target pressed_ = Target::None;
    int pressedIndex_ = -1;
};

}  // namespace petal
