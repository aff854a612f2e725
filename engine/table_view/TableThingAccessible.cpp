#include "engine/table_view/TableThingAccessible.h"

#include "engine/table_view/TableView.h"

namespace petal {

TableThingAccessible::TableThingAccessible(TableView* view, SpokenThing::Kind kind, int index) : view_(view), kind_(kind), index_(index) {}

const SpokenThing* TableThingAccessible::thing() const {
    if (!view_) return nullptr;
    for (const SpokenThing& t : view_->spoken())
        if (t.kind == kind_ && t.index == index_) return &t;
    return nullptr;
}

QWindow* TableThingAccessible::window() const { return view_ ? view_->window()->windowHandle() : nullptr; }

QAccessibleInterface* TableThingAccessible::parent() const { return view_ ? QAccessible::queryAccessibleInterface(view_) : nullptr; }

QString TableThingAccessible::text(QAccessible::Text t) const {
    const SpokenThing* s = thing();
    if (!s) return {};
    if (t == QAccessible::Name) return QString::fromStdString(s->name);
    if (t == QAccessible::Description || t == QAccessible::Help) return QString::fromStdString(s->description);
    return {};
}

QRect TableThingAccessible::rect() const {
    const SpokenThing* s = thing();
    if (!s || !s->control) return {};
    return view_->screenRect(*s->control);
}

QAccessible::Role TableThingAccessible::role() const {
    const SpokenThing* s = thing();
    switch (s ? s->role : SpokenThing::Role::Text) {
        case SpokenThing::Role::Card:
        case SpokenThing::Role::Place:
        case SpokenThing::Role::Button: return QAccessible::Button;
        case SpokenThing::Role::Status: return QAccessible::Notification;
        default: return QAccessible::StaticText;
    }
}

// A card the chosen card can take is active among the table's cards, as a list's current item
// is: the name says it too.
QAccessible::State TableThingAccessible::state() const {
    QAccessible::State state;
    const SpokenThing* s = thing();
    if (!s) {
        state.invisible = true;
        return state;
    }
    state.focusable = s->place.has_value();
    state.focused = s->place && view_->hasFocus() && view_->keys().focus().place() == *s->place;
    state.selectable = s->kind == SpokenThing::Kind::Hand;
    state.selected = s->selected;
    state.active = s->framed;
    const bool acts = s->role == SpokenThing::Role::Card || s->role == SpokenThing::Role::Place || s->role == SpokenThing::Role::Button;
    state.disabled = acts && !s->clickable;
    return state;
}

void* TableThingAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList TableThingAccessible::actionNames() const {
    const SpokenThing* s = thing();
    return s && s->clickable ? QStringList{pressAction()} : QStringList{};
}

void TableThingAccessible::doAction(const QString& name) {
    const SpokenThing* s = thing();
    if (s && s->clickable && name == pressAction()) view_->click(*s);
}

}  // namespace petal
