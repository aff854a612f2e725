#pragma once
// The painted table as the accessibility bus sees it: a panel whose children are the things of
// the view's spoken table, each an interface of its own kept for as long as the view lives, so
// that a reader holding one follows the same card from change to change.
#include <QAccessibleWidget>
#include <map>
#include <utility>

#include "engine/table_view/TableSpeech.h"

namespace petal {

class TableView;

class TableAccessible : public QAccessibleWidget {
public:
    explicit TableAccessible(TableView* view);
    ~TableAccessible() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    // Installed once: the view's interface is this one.
    static void install();

private:
    TableView* view() const;
    QAccessibleInterface* interfaceOf(const SpokenThing& thing) const;

    mutable std::map<std::pair<SpokenThing::Kind, int>, QAccessible::Id> children_;
};

}  // namespace petal
