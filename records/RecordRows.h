#pragma once
// What a row of the Hall of Fame's tables must hold to be a record that the game can have
// written: a name of at most 20 characters and a date text of at most 10, both well-formed
// UTF-8, every number whole and of 16 bits, as the game's own values are. Other rows come only
// from files made or changed elsewhere.
#include <string>

struct sqlite3;

namespace petal {

// An SQL expression over the given columns (", " between them): why a row is no record, or
// NULL for a record.
std::string oddRowCase(const std::string& columns);
// The condition that keeps the records of such a table and leaves out every other row.
inline std::string recordsOnly(const std::string& columns) { return "(" + oddRowCase(columns) + ") IS NULL"; }
// Adds record_text(value, most), which the expression calls, to a connection.
void addRecordFunctions(sqlite3* db);

}  // namespace petal
