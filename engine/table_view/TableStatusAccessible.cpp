#include "engine/table_view/TableStatusAccessible.h"

namespace petal {

void* TableStatusAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this) : TableThingAccessible::interface_cast(type);
}

QString TableStatusAccessible::text(int startOffset, int endOffset) const {
    const QString all = line();
    if (endOffset < 0 || endOffset > all.size()) endOffset = static_cast<int>(all.size());
    return startOffset >= 0 && startOffset < endOffset ? all.mid(startOffset, endOffset - startOffset) : QString();
}

QString TableStatusAccessible::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

}  // namespace petal
