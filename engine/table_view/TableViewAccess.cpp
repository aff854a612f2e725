// The view's side of the accessibility bus: the spoken table kept up to date, and the changes a
// reader is to hear sent as events.
#include <QAccessible>
#include <QFocusEvent>
#include <QTimer>

#include "engine/table_view/TableView.h"
#include "shell/FrmMain.h"

namespace petal {

void TableView::modelChanged() {
    const std::vector<SpokenThing> before = std::move(spoken_);
    spoken_ = spokenTable(game_);
    SpokenThing status;
    status.kind = SpokenThing::Kind::Status;
    status.role = SpokenThing::Role::Status;
    status.name = said_;
    spoken_.push_back(std::move(status));
    tellAccessibility(before);
    // One announcement for each change: a reader that hears several at once may drop all but one.
    std::string told;
    for (const std::string& sentence : narrator_.take()) told += (told.empty() ? "" : " ") + sentence;
    if (!told.empty()) announce(told);
}

int TableView::focusedThing() const {
    if (!hasFocus()) return -1;
    const TableFocus::Place mark = keys_.focus().place();
    for (std::size_t i = 0; i < spoken_.size(); ++i)
        if (spoken_[i].place == mark) return static_cast<int>(i);
    return -1;
}

void TableView::tellAccessibility(const std::vector<SpokenThing>& before) {
    if (!QAccessible::isActive()) return;
    const bool same = before.size() == spoken_.size() &&
                      std::equal(before.begin(), before.end(), spoken_.begin(), [](const auto& a, const auto& b) { return a.sameThing(b); });
    if (!same) {
        QAccessibleEvent reorder(this, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&reorder);
    }
    for (std::size_t i = 0; i < spoken_.size(); ++i) {
        const SpokenThing& now = spoken_[i];
        const auto was = std::find_if(before.begin(), before.end(), [&](const SpokenThing& t) { return t.sameThing(now); });
        if (was == before.end() || now.kind == SpokenThing::Kind::Status) continue;
        if (was->name != now.name) {
            QAccessibleEvent named(this, QAccessible::NameChanged);
            named.setChild(static_cast<int>(i));
            QAccessible::updateAccessibility(&named);
        }
        QAccessible::State changed;
        changed.selected = was->selected != now.selected;
        changed.active = was->framed != now.framed;
        changed.disabled = was->clickable != now.clickable;
        if (changed.selected || changed.active || changed.disabled) {
            QAccessibleStateChangeEvent states(this, changed);
            states.setChild(static_cast<int>(i));
            QAccessible::updateAccessibility(&states);
        }
    }
    tellFocus();
}

// Told again only when the mark is on another thing: a reader speaks each focus event.
void TableView::tellFocus() {
    const int focus = focusedThing();
    if (focus < 0) focusTold_.reset();
    if (focus < 0 || (focusTold_ && focusTold_->sameThing(spoken_[focus])) || !QAccessible::isActive()) return;
    focusTold_ = spoken_[focus];
    QAccessibleEvent focused(this, QAccessible::Focus);
    focused.setChild(focus);
    QAccessible::updateAccessibility(&focused);
}

// Each sentence is the status line's name in turn, told as a change of it and as the line
// showing, which readers speak for a notification.
void TableView::announce(const std::string& sentence) {
    const QString old = QString::fromStdString(said_);
    said_ = sentence;
    spoken_.back().name = sentence;
    if (!QAccessible::isActive()) return;
    const int status = static_cast<int>(spoken_.size()) - 1;
    QAccessibleTextUpdateEvent line(QAccessible::queryAccessibleInterface(this)->child(status), 0, old, QString::fromStdString(sentence));
    QAccessible::updateAccessibility(&line);
    QAccessibleEvent named(this, QAccessible::NameChanged);
    named.setChild(status);
    QAccessible::updateAccessibility(&named);
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    shown.setChild(status);
    QAccessible::updateAccessibility(&shown);
}

void TableView::click(const SpokenThing& thing) {
    using Kind = SpokenThing::Kind;
    Target target = Target::None;
    switch (thing.kind) {
        case Kind::Hand: target = Target::PCard; break;
        case Kind::TableTop: target = Target::Table; break;
        case Kind::Table: target = Target::TCard; break;
        case Kind::Deck: target = Target::Deck; break;
        case Kind::Yaku: target = Target::PYaku; break;
        case Kind::YakuClose: target = Target::YakuClose; break;
        default: return;
    }
    // The reader waits for the action's answer: a move that opens a box must not hold it.
    QTimer::singleShot(0, this, [this, target, index = thing.index] { clickPlace(target, index); });
}

QRect TableView::screenRect(const Control& control) const {
    QPointF origin;
    if (control.parent == Container::PicYakuShow) origin = TableScale::designRect(game_.ctl.picYakuShow, {}).topLeft();
    else if (control.parent == Container::Picture1 || control.parent == Container::Picture2)
        origin = TableScale::designRect(game_.ctl.panel[control.parent == Container::Picture1 ? 0 : 1].box, {}).topLeft();
    const QRect area = scale().map(TableScale::designRect(control, origin)).toAlignedRect();
    return QRect(mapToGlobal(area.topLeft()), area.size());
}

void TableView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    focusTold_.reset();
    tellFocus();
}

}  // namespace petal
