#pragma once
// The table's status line: the last move told. Its text changes whole with each move, and the
// change carries the new sentence, so a reader announces each one even when several come at
// once.
#include "engine/table_view/TableThingAccessible.h"

namespace petal {

class TableStatusAccessible : public TableThingAccessible, public QAccessibleTextInterface {
public:
    explicit TableStatusAccessible(TableView* view) : TableThingAccessible(view, SpokenThing::Kind::Status, 0) {}

    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override { return static_cast<int>(line().size()); }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* start, int* end) const override;

    using TableThingAccessible::text;

private:
    QString line() const { return TableThingAccessible::text(QAccessible::Name); }
};

}  // namespace petal
