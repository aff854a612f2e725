#include "engine/table_view/TableView.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEngine>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <optional>

#include "assets/PictureStore.h"
#include "engine/table_view/TableAccessible.h"
#include "cards/FrmCards.h"
#include "engine/table_view/TablePainter.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"
#include "shell/FrmMain.h"
#include "platform/qt/QtHost.h"

namespace petal {

namespace {

// How long the size must rest before the pictures are rendered for it.
constexpr int kSettleMs = 150;
// Between the frames of cards in flight: the rate of common screens.
constexpr int kFrameMs = 16;

QSizeF designSize() { return TableScale::designSize(); }

QRectF pixels(const Control& c, QPointF origin) { return TableScale::designRect(c, origin); }

void sortByZ(std::vector<TableView::Item>& list) {
    std::stable_sort(list.begin(), list.end(), [](const auto& a, const auto& b) { return a.control->ZOrder < b.control->ZOrder; });
}

// The place of the keys that a clicked control stands for, if any.
std::optional<TableFocus::Place> placeOf(TableView::Target target, int index) {
    using Where = TableFocus::Kind;
    switch (target) {
        case TableView::Target::Table: return TableFocus::Place{Where::TableTop, 0};
        case TableView::Target::TCard: return TableFocus::Place{Where::Table, index};
        case TableView::Target::Deck: return TableFocus::Place{Where::Deck, 0};
        case TableView::Target::PCard: return TableFocus::Place{Where::Hand, index};
        case TableView::Target::PYaku: return TableFocus::Place{Where::Yaku, index};
        default: return std::nullopt;
    }
}

// The key of the table that a key event stands for, if any, and the hand slot of a digit.
std::optional<TableKeys::Key> keyOf(const QKeyEvent& event, int& slot) {
    using Key = TableKeys::Key;
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return std::nullopt;
    const int key = event.key();
    if (key >= Qt::Key_1 && key <= Qt::Key_8) {
        slot = key - Qt::Key_1;
        return Key::Card;
    }
    switch (key) {
        case Qt::Key_Left: return Key::Left;
        case Qt::Key_Right: return Key::Right;
        case Qt::Key_Up: return Key::Up;
        case Qt::Key_Down: return Key::Down;
        case Qt::Key_Home: return Key::First;
        case Qt::Key_End: return Key::Last;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: return Key::Use;
        case Qt::Key_Escape: return Key::Close;
        default: return std::nullopt;
    }
}

}  // namespace

TableView::TableView(FrmMain& game, QtHost& host, PictureStore& pictures, QWidget* parent)
    : QWidget(parent), game_(game), host_(host), pictures_(pictures), keys_(game), narrator_(game) {
    TableAccessible::install();
    if (!game_.events) game_.events = &narrator_;
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    settle_.setSingleShot(true);
    settle_.setInterval(kSettleMs);
    connect(&settle_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    started_.start();
    clock_ = [this] { return started_.elapsed(); };
    frames_.setInterval(kFrameMs);
    frames_.setTimerType(Qt::PreciseTimer);
    // The frames stop with the last flight even where nothing is painted (a hidden window).
    connect(&frames_, &QTimer::timeout, this, [this] {
        if (!motion_.moving(clock_())) frames_.stop();
        update();
    });
    modelChanged();
}

TableView::~TableView() {
    if (game_.events == &narrator_) game_.events = nullptr;
}

QSize TableView::sizeHint() const { return designSize().toSize(); }

QSize TableView::minimumSizeHint() const { return (designSize() / 2).toSize(); }

TableScale TableView::scale() const { return TableScale(size(), designSize(), devicePixelRatioF()); }

QRect TableView::tableArea() const {
    constexpr int kGap = 8;  // keeps a box's frame off the panels' rim
    const QRectF area = scale().map(QRectF(0, 0, TableModel::kPanelLeft / 15.0, designSize().height()));
    return QRect(mapToGlobal(area.topLeft().toPoint()), QSize(qRound(area.width()) - kGap, qRound(area.height())));
}

std::vector<TableView::Item> TableView::items() const {
    const TableModel& c = game_.ctl;
    std::vector<Item> form;
    auto add = [](std::vector<Item>& list, const Control& control, Kind kind, Target target = Target::None, int index = -1) {
        list.push_back({&control, kind, target, index, {}});
    };
    for (int i = 0; i < 8; ++i) {
        add(form, c.imgCCard[i], Kind::Image);
        add(form, c.imgPCard[i], Kind::Image, Target::PCard, i);
        add(form, c.lblCYaku[i], Kind::Label);
        add(form, c.lblPYaku[i], Kind::Label);
    }
    for (int i = 0; i < 24; ++i) {
        add(form, c.imgCYaku[i], Kind::Image);
        add(form, c.imgPYaku[i], Kind::Image, Target::PYaku, i);
    }
    for (const Image& banner : c.imgWinLose) add(form, banner, Kind::Image);
    add(form, c.imgTable, Kind::Image, Target::Table);
    for (std::size_t i = 0; i < c.imgTCard.size(); ++i) add(form, c.imgTCard[i], Kind::Image, Target::TCard, static_cast<int>(i));
    // A frame names the place it frames, for the sign drawn with it; frames take no clicks.
    for (std::size_t i = 0; i < c.shpTHilite.size(); ++i) add(form, c.shpTHilite[i], Kind::Shape, Target::TCard, static_cast<int>(i));
    add(form, c.imgDeck, Kind::Image, Target::Deck);
    add(form, c.imgFlipCard, Kind::Image);
    add(form, c.shpFlipCard, Kind::Shape);
    add(form, c.shpPHilite, Kind::Shape, Target::PCard);
    for (int side = 0; side < 2; ++side) {
        const ScorePanel& p = c.panel[side];
        Item box{&p.box, Kind::Box, side == 0 ? Target::Picture1 : Target::Picture2, side, {}};
        for (int row = 0; row < 4; ++row)
            for (const Image& card : p.piles[row])
                add(box.children, card, Kind::Image, side == 0 && row == 3 ? Target::Pile00 : Target::None);
        for (int k = 0; k < 4; ++k) {
            add(box.children, p.lblPoints[k], Kind::Label);
            add(box.children, p.lblPointsTotal[k], Kind::Label);
        }
        add(box.children, p.imgTurn, Kind::Image);
        add(box.children, p.imgGagi, Kind::Image);
        sortByZ(box.children);
        form.push_back(std::move(box));
    }
    Item panel{&c.picYakuShow, Kind::Box, Target::YakuPanel, 0, {}};
    for (int i = 0; i < 3; ++i) add(panel.children, c.imgYakuShow[i], Kind::Image, Target::YakuShow, i);
    add(panel.children, c.cmdYakuClose, Kind::Button, Target::YakuClose);
    sortByZ(panel.children);
    form.push_back(std::move(panel));
    sortByZ(form);
    return form;
}

void TableView::paintEvent(QPaintEvent*) {
    const qint64 now = clock_();
    followModel(now);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The ratio of the device painted on: the screen's, or that of an image the view renders into.
    const qreal dpr = painter.paintEngine()->paintDevice()->devicePixelRatioF();
    const TableScale scale(size(), designSize(), dpr);
    painter.fillRect(rect(), QColor(12, 40, 30));
    TablePainter table(painter, pictures_, scale, !settled());
    table.setOppositeFrame(game_.m.mHiliteColor[1]);
    table.setHidden(motion_.covered(game_.ctl, now));
    table.paintBackground(game_.ctl.Picture, size());
    table.paintItems(items(), QPointF(0, 0));
    for (const CardMotion::Drawn& card : motion_.drawn(now)) table.paintFlight(card);
    if (keys_.markShown()) table.paintFocusMark(keys_.focus().control(keys_.focus().place()));
    const Hint::Marks hint = game_.hint.marks();
    if (hint.hand >= 0) table.paintHintMark(game_.ctl.imgPCard.at(hint.hand));
    if (hint.table >= 0) table.paintHintMark(game_.ctl.imgTCard.at(hint.table));
    // Frames follow one another only while a card moves: a still table costs nothing.
    if (!motion_.moving(now)) frames_.stop();
    else if (!frames_.isActive()) frames_.start();
}

// The model has changed at once; the drawing follows it. With Game > Animations unchecked
// cards stand where the model puts them, and the next look after it is checked again only
// notes where they stand.
void TableView::followModel(qint64 now) {
    if (!game_.menu.mnuAnimations.Checked) {
        motion_.reset();
        return;
    }
    const bool newDeal = game_.m.dealSerial != dealSerial_;
    dealSerial_ = game_.m.dealSerial;
    motion_.follow(CardMotion::places(game_.ctl, game_.m), now, newDeal, TableScale::designRect(game_.ctl.imgDeck, {}),
                   game_.m.mCardBack);
}

// While the size changes, each frame shows the pictures last rendered, stretched; once it
// rests, they are rendered for it. A drag through many sizes renders only where it stops.
void TableView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (isVisible()) settle_.start();
}

const TableView::Item* TableView::hitTest(QPointF point, const std::vector<Item>& all, QPointF* origin) const {
    const QPointF base = origin ? *origin : QPointF(0, 0);
    for (auto it = all.rbegin(); it != all.rend(); ++it) {
        const Control& c = *it->control;
        // Frames take no mouse; disabled and hidden controls leave it to what lies beneath.
        if (!c.Visible || !c.Enabled || it->kind == Kind::Shape) continue;
        const QRectF area = pixels(c, base);
        if (!area.contains(point)) continue;
        if (!it->children.empty()) {
            QPointF inner = area.topLeft();
            if (const Item* child = hitTest(point, it->children, &inner)) return child;
        }
        return &*it;
    }
    return nullptr;
}

const TableView::Item* TableView::itemAt(QPointF viewPoint, const std::vector<Item>& all) const {
    return hitTest(scale().toDesign(viewPoint), all);
}

void TableView::mousePressEvent(QMouseEvent* event) {
    const auto all = items();
    const Item* item = itemAt(event->position(), all);
    pressed_ = item ? item->target : Target::None;
    pressedIndex_ = item ? item->index : -1;
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
    const auto all = items();
    const Item* item = itemAt(event->position(), all);
    const bool clicked = item && item->target == pressed_ && item->index == pressedIndex_ && event->button() == Qt::LeftButton;
    pressed_ = Target::None;
    if (!clicked) return;
    clickPlace(item->target, item->index);
}

void TableView::clickPlace(Target target, int index) {
    host_.dispatch([this, target, index] {
        if (const auto place = placeOf(target, index)) keys_.click(*place);
        else if (target == Target::YakuClose) game_.yaku.cmdYakuClose_Click();
    });
    update();
}

// The keys of the table go to its key model; a held key moves the mark but uses nothing twice.
void TableView::keyPressEvent(QKeyEvent* event) {
    int slot = 0;
    const auto key = keyOf(*event, slot);
    if (!key || !keys_.takes(*key, slot)) {
        QWidget::keyPressEvent(event);
        return;
    }
    const bool moves = *key != TableKeys::Key::Use && *key != TableKeys::Key::Card && *key != TableKeys::Key::Close;
    if (event->isAutoRepeat() && !moves) return;
    host_.dispatch([this, key, slot] { keys_.press(*key, slot); });
    update();
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
    const auto all = items();
    mouseMoved(itemAt(event->position(), all));
}

void TableView::mouseMoved(const Item* item) {
    const Target target = item ? item->target : Target::None;
    const bool onForm = !item;
    const int i = item ? item->index : -1;
    host_.dispatch([this, target, onForm, i] {
        switch (target) {
            case Target::PCard: game_.imgPCard_MouseMove(); break;
            case Target::Pile00: game_.imgPPoint00_MouseMove(); break;
            case Target::Picture1: game_.Picture1_MouseMove(); break;
            case Target::Picture2: game_.Picture2_MouseMove(); break;
            case Target::YakuShow: game_.yaku.imgYakuShow_MouseMove(); break;
            case Target::YakuPanel: game_.yaku.picYakuShow_MouseMove(); break;
            case Target::PYaku: game_.yaku.imgPYaku_MouseMove(i); break;
            default:
                if (onForm) game_.Form_MouseMove();
                break;
        }
    });
}

namespace {

// A card's tool tip is one of the catalogue's own texts: which card's is known by where it lies.
QString spokenToolTip(std::string_view text) {
    for (int n = 1; n <= FrmCards::kCards; ++n) {
        const CardRecord& card = FrmCards::card(n);
        if (cardToolTip(card).data() == text.data())
            return Language::core(PETAL_TR("core", "%1 (%2 pts.)"))
                .arg(Language::cardName(FrmCards::imgCard(n - 1).Tag))
                .arg(card.Points);
    }
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

bool TableView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    auto* help = static_cast<QHelpEvent*>(event);
    const auto all = items();
    const Item* item = itemAt(help->pos(), all);
    QString tip;
    if (item && item->target == Target::Deck) tip = Language::core(game_.dealer.deckToolTip());
    else if (item && item->kind == Kind::Image) tip = spokenToolTip(static_cast<const Image*>(item->control)->ToolTipText);
    if (tip.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), tip, this);
    return true;
}

void TableView::applyMousePointer(int pointer) {
    if (pointer == FrmMain::kPointerHourglass) {
        setCursor(Qt::WaitCursor);
    } else if (pointer == FrmMain::kPointerHand) {
        const QPixmap hand = pictures_.pixmap(pic::HandCursor, devicePixelRatioF());
        setCursor(QCursor(hand, 9, 1));
    } else {
        setCursor(Qt::ArrowCursor);
    }
}

}  // namespace petal
