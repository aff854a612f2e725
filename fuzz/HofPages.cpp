#include "HofPages.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <optional>
#include <utility>

#include "FileRig.h"
#include "records/Characters.h"
#include "records/FrmHOF.h"

namespace petal::fuzz {

namespace {

// A whole number of 16 bits, written as the store writes numbers.
std::optional<long long> whole(const std::string& text) {
    if (text.empty() || text.size() > 6 || text.find_first_not_of("-0123456789") != std::string::npos)
        return std::nullopt;
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    if (value < SHRT_MIN || value > SHRT_MAX || std::to_string(value) != text) return std::nullopt;
    return value;
}

}  // namespace

bool HofPages::show(FileRig& rig) {
    rig.onForm = [&](Form& form) {
        auto* hall = dynamic_cast<FrmHOF*>(&form);
        if (!hall) return;
        pages[0] = hall->cells;
        hall->cmdNext_Click();
        pages[1] = hall->cells;
        hall->cmdPrev_Click();
        if (hall->cells != pages[0]) rig.fail("the single page shows other rows when it comes back");
        hall->cmdClose_Click();
    };
    const bool shown = rig.act([&] { rig.f().mnuVHallofFame_Click(); });
    rig.onForm = nullptr;
    return shown;
}

int HofPages::rows(int t) const {
    int shown = 0;
    for (int r = 1; r <= 10; ++r) shown += pages[t][2][r] != " ";
    return shown;
}

std::string HofPages::check(int t, int gameType, const HofSnapshot::Table& table, bool told) const {
    const Cells& c = pages[t];
    const std::string page = t ? "the tournament page" : "the single page";
    bool blankAbove = false;
    std::pair<long long, long long> above{LLONG_MAX, LLONG_MAX};
    for (int r = 1; r <= 10; ++r) {
        const std::string row = page + ", row " + std::to_string(r) + ": ";
        if (c[2][r] == " ") {
            blankAbove = true;
            continue;
        }
        if (blankAbove) return row + "a record below a blank row";
        if (const std::size_t n = characterCount(c[0][r]); n > 20)
            return row + "a name of " + std::to_string(n) + " characters";
        if (const std::size_t n = characterCount(c[1][r]); n > 10)
            return row + "a date of " + std::to_string(n) + " characters";
        std::array<std::optional<long long>, 5> n;  // score, yaku, won, rounds, score average
        n[0] = whole(c[2][r]);
        n[1] = whole(c[3][r]);
        if (t == 0) {
            if (c[4][r] != "N/A" || c[5][r] != "N/A" || c[6][r] != "N/A") return row + "a value where \"N/A\" belongs";
        } else if (gameType != 0) {
            const std::size_t slash = c[4][r].find('/');
            n[2] = whole(c[4][r].substr(0, slash));
            n[3] = slash == std::string::npos ? std::nullopt : whole(c[4][r].substr(slash + 1));
            n[4] = whole(c[5][r]);
            if (!whole(c[6][r]))
                return row + "a yaku average that is no whole number: \"" + c[6][r].substr(0, 40) + "\"";
        } else {
            n[2] = whole(c[4][r]);
            n[3] = whole(c[5][r]);
            n[4] = whole(c[6][r]);
        }
        for (std::size_t i = 0; i < (t ? 5u : 2u); ++i)
            if (!n[i]) return row + "a value that is no whole number of 16 bits";
        const std::pair<long long, long long> key{t ? *n[4] : 0, *n[0]};
        if (key > above) return row + "a record above its place in the order";
        above = key;
    }
    const int shown = rows(t);
    if (!table.ours) {
        const long held = std::min(table.count, 10L);
        if (shown < held && !told)
            return page + ": " + std::to_string(shown) + " rows of a table of " + std::to_string(table.count) +
                   ", and no word of why";
        return "";
    }
    if (table.foreign > 0 && !told)
        return page + ": " + std::to_string(table.foreign) + " rows that are no records left out without a word";
    const int expected = static_cast<int>(std::min<std::size_t>(table.rows.size(), 10));
    if (shown != expected)
        return page + ": " + std::to_string(shown) + " rows of the game's own table of " +
               std::to_string(table.rows.size());
    const auto matches = [&](const HofSnapshot::Row& row, int r) {
        const auto& x = row.numbers;
        if (c[0][r] != row.name || c[1][r] != formatDate(row.date) || c[2][r] != std::to_string(x[0]) ||
            c[3][r] != std::to_string(x[1]))
            return false;
        if (t == 0) return true;
        if (gameType != 0)
            return c[4][r] == std::to_string(x[2]) + "/" + std::to_string(x[3]) && c[5][r] == std::to_string(x[4]) &&
                   c[6][r] == std::to_string(x[5]);
        return c[4][r] == std::to_string(x[2]) && c[5][r] == std::to_string(x[3]) && c[6][r] == std::to_string(x[4]);
    };
    for (int i = 0; i < expected; ++i) {
        // Rows alike in every part of the order may stand either way round.
        bool found = false;
        for (std::size_t j = 0; j < table.rows.size() && !found; ++j)
            found = HofSnapshot::sameKey(table.rows[j], table.rows[i], t == 1) && matches(table.rows[j], i + 1);
        if (!found) return page + ", row " + std::to_string(i + 1) + ": not the table's record of that place";
    }
    return "";
}

}  // namespace petal::fuzz
