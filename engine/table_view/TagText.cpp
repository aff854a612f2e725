#include "engine/table_view/TagText.h"

#include <ostream>

namespace petal {

std::ostream& operator<<(std::ostream& out, const TagText& tag) { return out << tag.text(); }

}  // namespace petal
