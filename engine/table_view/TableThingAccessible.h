#pragma once
// One thing of the painted table (a card, the deck, a score, the status line) as the
// accessibility bus sees it: its name, role and state come from the view's spoken table, and
// its one action is the click that the mouse would give.
#include <QAccessibleInterface>
#include <QPointer>

#include "engine/table_view/TableSpeech.h"

namespace petal {

class TableView;

class TableThingAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    TableThingAccessible(TableView* view, SpokenThing::Kind kind, int index);

    // Kept valid while the view lives: a card that has left the table is only invisible.
    bool isValid() const override { return !view_.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text t) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    // The thing as the view last spoke it, or nullptr while it is not on the table.
    const SpokenThing* thing() const;

    QPointer<TableView> view_;
    SpokenThing::Kind kind_;
    int index_;
};

}  // namespace petal
