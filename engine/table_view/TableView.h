#pragma once
// Draws the table model at any size, one picture scaled uniformly and centred, and forwards
// clicks, keys, mouse moves and tool tips to the game's handlers. The game knows nothing of
// the scale: hit tests work in design pixels (15 twips each).
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "engine/table_view/CardMotion.h"
#include "engine/table_view/Controls.h"
#include "engine/table_view/TableKeys.h"
#include "engine/table_view/TableNarrator.h"
#include "engine/table_view/TableScale.h"
#include "engine/table_view/TableSpeech.h"

namespace petal {

class FrmMain;
class PictureStore;
class QtHost;

class TableView : public QWidget {
    Q_OBJECT
public:
    TableView(FrmMain& game, QtHost& host, PictureStore& pictures, QWidget* parent = nullptr);
    ~TableView() override;

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

    // What a screen reader finds on the table as it last stood, the status line last; brought up
    // to date, with the moves to announce and the focus of the keys, after each change.
    const std::vector<SpokenThing>& spoken() const { return spoken_; }
    void modelChanged();
    // The spoken thing under the keys' mark while the view has the focus, or -1.
    int focusedThing() const;
    // A click on a spoken thing, run once the caller has returned, as a reader's action asks.
    void click(const SpokenThing& thing);
    // Where a control of the form stands on the screen.
    QRect screenRect(const Control& control) const;

protected:
    void focusInEvent(QFocusEvent*) override;
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
    void clickPlace(Target target, int index);
    void tellAccessibility(const std::vector<SpokenThing>& before);
    void tellFocus();
    void announce(const std::string& sentence);

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
    TableNarrator narrator_;
    std::vector<SpokenThing> spoken_;
    std::string said_;  // the status line: the last move told
    std::optional<SpokenThing> focusTold_;  // the thing a reader was last told has the focus
};

}  // namespace petal
