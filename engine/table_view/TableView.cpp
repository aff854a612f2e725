#include "engine/table_view/TableView.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "assets/PictureStore.h"
#include "shell/FrmMain.h"
#include "platform/qt/QtHost.h"

namespace petal {

namespace {

constexpr qreal kTwipsPerPixel = 15.0;

QRectF pixels(const Control& c, QPointF origin) {
    return QRectF(origin.x() + c.Left / kTwipsPerPixel, origin.y() + c.Top / kTwipsPerPixel,
                  c.Width / kTwipsPerPixel, c.Height / kTwipsPerPixel);
}

QColor fromBgr(std::uint32_t bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }

// The nearest fonts that Debian ships for the classic names.
QFont fontFor(const FontSpec& style) {
    QFont font(style.family == "Times New Roman" ? QStringLiteral("Liberation Serif") : QStringLiteral("Liberation Sans"));
    font.setPointSizeF(style.points);
    font.setBold(style.bold);
    return font;
}

void sortByZ(std::vector<TableView::Item>& list) {
    std::stable_sort(list.begin(), list.end(), [](const auto& a, const auto& b) { return a.control->ZOrder < b.control->ZOrder; });
}

}  // namespace

TableView::TableView(FrmMain& game, QtHost& host, PictureStore& pictures, QWidget* parent)
    : QWidget(parent), game_(game), host_(host), pictures_(pictures) {
    setMouseTracking(true);
    setFixedSize(sizeHint());
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize TableView::sizeHint() const {
    return QSize(qRound(TableModel::kClientWidth / kTwipsPerPixel), qRound(TableModel::kClientHeight / kTwipsPerPixel));
}

QRect TableView::tableArea() const {
    constexpr int kGap = 8;  // keeps a box's frame off the panels' rim
    const int width = qRound(TableModel::kPanelLeft / kTwipsPerPixel) - kGap;
    return QRect(mapToGlobal(QPoint(0, 0)), QSize(width, height()));
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
    for (const Shape& frame : c.shpTHilite) add(form, frame, Kind::Shape);
    add(form, c.imgDeck, Kind::Image, Target::Deck);
    add(form, c.imgFlipCard, Kind::Image);
    add(form, c.shpFlipCard, Kind::Shape);
    add(form, c.shpPHilite, Kind::Shape);
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
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal dpr = devicePixelRatioF();
    painter.fillRect(rect(), QColor(12, 40, 30));
    if (game_.ctl.Picture != NoPicture) painter.drawPixmap(QPointF(0, 0), pictures_.pixmap(game_.ctl.Picture, dpr));
    paintItems(painter, items(), QPointF(0, 0));
}

void TableView::paintItems(QPainter& painter, const std::vector<Item>& list, QPointF origin) {
    for (const Item& item : list) {
        if (!item.control->Visible) continue;
        paintItem(painter, item, origin);
        if (item.children.empty()) continue;
        const QRectF area = pixels(*item.control, origin);
        painter.save();
        painter.setClipRect(area);
        paintItems(painter, item.children, area.topLeft());
        painter.restore();
    }
}

void TableView::paintItem(QPainter& painter, const Item& item, QPointF origin) {
    const QRectF area = pixels(*item.control, origin);
    const qreal dpr = devicePixelRatioF();
    switch (item.kind) {
        case Kind::Image: {
            const auto& image = static_cast<const Image&>(*item.control);
            if (image.hasPicture()) painter.drawPixmap(area.topLeft(), pictures_.pixmap(image.Picture, area.size().toSize(), dpr));
            break;
        }
        case Kind::Box: {
            const auto& box = static_cast<const PictureBox&>(*item.control);
            if (box.Picture != NoPicture)
                painter.drawPixmap(area.topLeft(), pictures_.pixmap(box.Picture, area.size().toSize(), dpr));
            else {
                // The yaku panel has no picture: a lacquer plate with a gold rim, like the others.
                painter.setPen(QPen(QColor(196, 160, 84), 1.5));
                painter.setBrush(QColor(34, 24, 22, 240));
                painter.drawRoundedRect(area.adjusted(0.75, 0.75, -0.75, -0.75), 4, 4);
            }
            break;
        }
        case Kind::Shape: {
            const auto& shape = static_cast<const Shape&>(*item.control);
            const qreal w = shape.BorderWidth;
            painter.setPen(QPen(fromBgr(shape.BorderColor), w, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(area.adjusted(w / 2, w / 2, -w / 2, -w / 2));
            break;
        }
        case Kind::Label: {
            const auto& label = static_cast<const Label&>(*item.control);
            painter.setPen(fromBgr(label.ForeColor));
            painter.setFont(fontFor(label.font));
            const Qt::Alignment align = label.alignment == Alignment::Center ? Qt::AlignHCenter
                                        : label.alignment == Alignment::Right ? Qt::AlignRight
                                                                              : Qt::AlignLeft;
            painter.drawText(area, align | Qt::AlignVCenter, QString::fromStdString(label.Caption));
            break;
        }
        case Kind::Button: {
            const auto& button = static_cast<const Button&>(*item.control);
            painter.setPen(QColor(238, 216, 140));
            painter.setBrush(QColor(90, 24, 30));
            painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
            painter.setFont(fontFor({"MS Sans Serif", 8, true}));
            painter.drawText(area, Qt::AlignCenter, QString::fromStdString(button.Caption));
            break;
        }
    }
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

void TableView::mousePressEvent(QMouseEvent* event) {
    const auto all = items();
    const Item* item = hitTest(event->position(), all);
    pressed_ = item ? item->target : Target::None;
    pressedIndex_ = item ? item->index : -1;
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
    const auto all = items();
    const Item* item = hitTest(event->position(), all);
    if (item && item->target == pressed_ && item->index == pressedIndex_ && event->button() == Qt::LeftButton) {
        const Item copy{item->control, item->kind, item->target, item->index, {}};
        click(copy);
    }
    pressed_ = Target::None;
}

void TableView::click(const Item& item) {
    const int i = item.index;
    host_.dispatch([this, &item, i] {
        switch (item.target) {
            case Target::PCard: game_.play.imgPCard_Click(i); break;
            case Target::TCard: game_.play.imgTCard_Click(i); break;
            case Target::Table: game_.play.imgTable_Click(); break;
            case Target::Deck: game_.dealer.imgDeck_Click(); break;
            case Target::PYaku: game_.yaku.imgPYaku_Click(i); break;
            case Target::YakuClose: game_.yaku.cmdYakuClose_Click(); break;
            default: break;
        }
    });
    update();
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
    const auto all = items();
    mouseMoved(hitTest(event->position(), all));
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

bool TableView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    auto* help = static_cast<QHelpEvent*>(event);
    const auto all = items();
    const Item* item = hitTest(help->pos(), all);
    QString tip;
    if (item && item->target == Target::Deck) tip = QString::fromStdString(game_.dealer.deckToolTip());
    else if (item && item->kind == Kind::Image) {
        const std::string_view text = static_cast<const Image*>(item->control)->ToolTipText;
        tip = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
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
