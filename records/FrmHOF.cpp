#include "records/FrmHOF.h"

#include <cstdio>
#include <vector>

#include "cards/Globals.h"
#include "cards/Val.h"
#include "records/HallOfFame.h"

namespace petal {

namespace {

std::vector<std::string> split(const std::string& text, char sep) {
    std::vector<std::string> parts;
    for (std::size_t at = 0;;) {
        const std::size_t next = text.find(sep, at);
        parts.push_back(text.substr(at, next - at));
        if (next == std::string::npos) return parts;
        at = next + 1;
    }
}

// The store's rows are whole, their separators escaped; a field missing all the same reads blank.
std::string field(const std::vector<std::string>& fields, std::size_t index) {
    return index < fields.size() ? HallOfFame::fieldValue(fields[index]) : " ";
}

}  // namespace

std::string formatDate(const std::string& text) {
    const std::vector<std::string> parts = split(text, '/');
    if (parts.size() != 3 || parts[2].size() != 4) return text;
    const long m = Val(parts[0]), d = Val(parts[1]), y = Val(parts[2]);
    if (m < 1 || m > 12 || d < 1 || d > 31 || y < 100) return text;
    char buf[48];
    std::snprintf(buf, sizeof buf, "%02ld/%02ld/%04ld", m, d, y);
    return buf;
}

std::array<std::vector<std::string>, 10> FrmHOF::rowsOf(const std::string& text) {
    std::array<std::vector<std::string>, 10> rows;
    if (text.empty()) return rows;
    const std::vector<std::string> parts = split(text, ':');
    for (std::size_t i = 0; i < parts.size() && i < rows.size(); ++i) rows[i] = split(parts[i], ',');
    return rows;
}

void FrmHOF::showSinglePage() {
    const auto rows = rowsOf(hof_.GetHallOfFame(0));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].empty()) continue;
        for (int c = 0; c < kColumns; ++c) {
            const std::string value = field(rows[i], c);
            cells[c][i + 1] = c == 1 ? formatDate(value) : value;
        }
    }
    imgSingCaptionVisible = true;
    imgTourCaptionVisible = false;
    cmdNextEnabled = true;
    cmdPrevEnabled = false;
}

void FrmHOF::cmdNext_Click() {
    const auto rows = rowsOf(hof_.GetHallOfFame(1));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& f = rows[i];
        if (f.empty()) continue;
        const std::size_t row = i + 1;
        for (int c = 0; c < 4; ++c) cells[c][row] = c == 1 ? formatDate(field(f, c)) : field(f, c);
        // The last three columns follow the current game's type, not the page: outside a
        // tournament they show the rounds won, the rounds and the score average.
        if (g_.gGameType != 0) {
            cells[4][row] = field(f, 4) == " " ? "" : field(f, 4) + "/" + field(f, 5);
            cells[5][row] = field(f, 6);
            cells[6][row] = field(f, 7);
        } else {
            for (int c = 4; c < kColumns; ++c) cells[c][row] = field(f, c);
        }
    }
    imgSingCaptionVisible = false;
    imgTourCaptionVisible = true;
    cmdNextEnabled = false;
    cmdPrevEnabled = true;
}

}  // namespace petal
