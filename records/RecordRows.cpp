#include "records/RecordRows.h"

#include <sqlite3.h>

#include <algorithm>
#include <string_view>

#include "records/Characters.h"
#include "records/HallOfFame.h"

namespace petal {

namespace {

// record_text(value, most): whether a value is text, well-formed, of at most `most` characters.
void recordText(sqlite3_context* context, int, sqlite3_value** args) {
    bool fits = false;
    if (sqlite3_value_type(args[0]) == SQLITE_TEXT) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(args[0]));
        const std::string_view value(text ? text : "", static_cast<std::size_t>(sqlite3_value_bytes(args[0])));
        const auto most = static_cast<std::size_t>(std::max(0, sqlite3_value_int(args[1])));
        fits = isWellFormedUtf8(value) && firstCharacters(value, most).size() == value.size();
    }
    sqlite3_result_int(context, fits);
}

}  // namespace

std::string oddRowCase(const std::string& columns) {
    std::string cases;
    for (std::size_t at = 0; at < columns.size();) {
        const std::size_t end = std::min(columns.find(", ", at), columns.size());
        const std::string c = columns.substr(at, end - at);
        at = end + 2;
        if (c == "PlayerName" || c == "DateWon") {
            const std::string most = std::to_string(c == "PlayerName" ? HallOfFame::kNameLength : 10);
            cases += " WHEN NOT record_text(" + c + ", " + most + ") THEN 'its " + c + " is no text of at most " +
                     most + " characters'";
        } else {
            cases += " WHEN typeof(" + c + ") <> 'integer' OR " + c +
                     " NOT BETWEEN -32768 AND 32767 THEN 'its " + c + " is no whole number of 16 bits'";
        }
    }
    return "CASE" + cases + " END";
}

void addRecordFunctions(sqlite3* db) {
    sqlite3_create_function_v2(db, "record_text", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY, nullptr,
                               recordText, nullptr, nullptr, nullptr);
}

}  // namespace petal
