#include "engine/table_view/TableAccessible.h"

#include "engine/table_view/TableStatusAccessible.h"
#include "engine/table_view/TableView.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"

namespace petal {

TableAccessible::TableAccessible(TableView* view) : QAccessibleWidget(view, QAccessible::Pane, Language::core(PETAL_TR("core", "Card table"))) {}

TableAccessible::~TableAccessible() {
    for (const auto& [key, id] : children_) QAccessible::deleteAccessibleInterface(id);
}

void TableAccessible::install() {
    static const bool installed = [] {
        QAccessible::installFactory([](const QString& className, QObject* object) -> QAccessibleInterface* {
            auto* view = qobject_cast<TableView*>(object);
            return view && className == QLatin1String(TableView::staticMetaObject.className()) ? new TableAccessible(view) : nullptr;
        });
        return true;
    }();
    (void)installed;
}

TableView* TableAccessible::view() const { return static_cast<TableView*>(widget()); }

QAccessibleInterface* TableAccessible::interfaceOf(const SpokenThing& thing) const {
    const auto key = std::make_pair(thing.kind, thing.index);
    auto it = children_.find(key);
    if (it == children_.end()) {
        QAccessibleInterface* made = thing.kind == SpokenThing::Kind::Status ? new TableStatusAccessible(view())
                                                                             : new TableThingAccessible(view(), thing.kind, thing.index);
        it = children_.emplace(key, QAccessible::registerAccessibleInterface(made)).first;
    }
    return QAccessible::accessibleInterface(it->second);
}

int TableAccessible::childCount() const { return static_cast<int>(view()->spoken().size()); }

QAccessibleInterface* TableAccessible::child(int index) const {
    const auto& things = view()->spoken();
    return index >= 0 && index < static_cast<int>(things.size()) ? interfaceOf(things[index]) : nullptr;
}

int TableAccessible::indexOfChild(const QAccessibleInterface* child) const {
    for (int i = 0; i < childCount(); ++i)
        if (this->child(i) == child) return i;
    return -1;
}

QAccessibleInterface* TableAccessible::childAt(int x, int y) const {
    for (int i = childCount() - 1; i >= 0; --i)
        if (QAccessibleInterface* c = child(i); c->rect().contains(x, y)) return c;
    return nullptr;
}

QAccessibleInterface* TableAccessible::focusChild() const {
    const int i = view()->focusedThing();
    return i >= 0 ? child(i) : nullptr;
}

}  // namespace petal
