#include "HallOfFameTarget.h"

#include <algorithm>
#include <set>
#include <tuple>

#include "FileRig.h"
#include "HofPages.h"
#include "HofSampler.h"
#include "records/FrmHOFWinner.h"
#include "records/Gardenia.h"
#include "records/HallOfFame.h"

namespace petal::fuzz {

namespace {

const char* const kTableNames[2] = {"SingleStats", "TournamentStats"};

// Rows in an order of their every part, so that two lists compare as sets with repeats.
std::vector<HofSnapshot::Row> canonical(std::vector<HofSnapshot::Row> rows) {
    std::sort(rows.begin(), rows.end(), [](const HofSnapshot::Row& a, const HofSnapshot::Row& b) {
        return std::tie(a.numbers, a.date, a.name) < std::tie(b.numbers, b.date, b.name);
    });
    return rows;
}

// The box that tells of rows that no game could have written, left out of a table.
bool leftOut(const MsgBox& box) { return box.text.find(" that no game could have written (") != std::string::npos; }

bool anyBox(const FileRig& rig, const std::string& words) {
    return std::any_of(rig.boxes().begin(), rig.boxes().end(),
                       [&](const MsgBox& box) { return box.text.find(words) != std::string::npos; });
}

// What the program told, for the report of a failure.
std::string told(const FileRig& rig) {
    std::string text;
    for (const MsgBox& box : rig.boxes()) text += "\n  told: " + box.text.substr(0, 240);
    return text;
}

}  // namespace

struct HallOfFameTarget::Entry {
    bool high = false;
    bool given = false;  // the winner gave a name and pressed OK
    HofSnapshot::Row row;
};

HallOfFameTarget::HallOfFameTarget(std::filesystem::path scratch) : scratch_(std::move(scratch)) {
    FileRig maker(scratch_);
    SimHost host(maker.folder());
    HallOfFame(host).OpenHallOfFame();
    schema_ = HofSnapshot::schemaOf(maker.file(HallOfFame::kFileName));
}

std::string HallOfFameTarget::run(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    ++inputs_;
    FileRig rig(scratch_);
    const std::filesystem::path file = rig.file(HallOfFame::kFileName);
    rig.write(HallOfFame::kFileName, bytes);
    SplitMix plan(FileRig::planSeed(bytes));
    const int gameType = plan.chance(75) ? 1 : 0;
    rig.write(Gardenia::kFileName, gameType ? "1\r\n5\r\n-1\r\n0\r\n" : "0\r\n10\r\n-1\r\n0\r\n");
    const HofSnapshot before = HofSnapshot::read(file, schema_);
    databases_ += before.database;
    for (const HofSnapshot::Table& table : before.tables) ownTables_ += table.ours;

    if (!rig.start()) return "at start: " + rig.failure();
    HofPages first;
    if (!first.show(rig)) return "showing the pages: " + rig.failure();
    if (std::string broken = checkPages(rig, first, gameType, before); !broken.empty())
        return "at start, " + broken + told(rig);
    Entry entries[2];
    const int firstTable = static_cast<int>(plan.below(2));
    for (int k = 0; k < 2; ++k) {
        const int t = (firstTable + k) % 2;
        if (std::string broken = enter(rig, t, plan, before, entries[t]); !broken.empty()) return broken;
    }
    HofPages second;
    if (!second.show(rig)) return "showing the pages again: " + rig.failure();
    rig.stop();
    toldBoxes_ += static_cast<long>(rig.boxes().size());
    if (std::string broken = checkBoxes(rig, before); !broken.empty()) return broken;

    const HofSnapshot after = HofSnapshot::read(file, schema_);
    for (int t = 0; t < 2; ++t) {
        if (std::string broken = checkKept(t, before, after, entries[t]); !broken.empty())
            return std::string(kTableNames[t]) + ": " + broken + told(rig);
        given_ += entries[t].given;
    }
    if (std::string broken = checkPages(rig, second, gameType, after); !broken.empty())
        return "after the entries, " + broken + told(rig);
    if (before.database && before.whole && before.othersRead && after.others != before.others)
        return "a table that is none of the game's has changed";
    if (!before.database && after.bytes != before.bytes) return "a file that is no database was written to";

    // The next start reads what this one left.
    if (!plan.chance(30)) return "";
    if (!rig.start()) return "at the next start: " + rig.failure();
    HofPages third;
    if (!third.show(rig)) return "showing the pages at the next start: " + rig.failure();
    rig.stop();
    if (std::string broken = checkBoxes(rig, after); !broken.empty()) return "at the next start: " + broken;
    if (std::string broken = checkPages(rig, third, gameType, after); !broken.empty())
        return "at the next start, " + broken + told(rig);
    return "";
}

// Every box is one of the records' own, told once, that names the file, the operation and the
// reason; a file that cannot be opened is told at the opening and at no operation after it.
std::string HallOfFameTarget::checkBoxes(FileRig& rig, const HofSnapshot& before) const {
    if (rig.host().ending()) return "the program ended";
    const std::string head = "The Hall of Fame file \"" + rig.file(HallOfFame::kFileName).string() + "\" cannot be ";
    const std::string tail = ".\n\nThe game goes on without it.";
    std::set<std::string> seen;
    bool opened = false;
    for (const MsgBox& box : rig.boxes()) {
        const std::string shown = "\"" + box.text.substr(0, 300) + "\" (" + box.title + ")";
        if (!seen.insert(box.text).second) return "a box told twice: " + shown;
        if (box.title == "Invalid Password") return "a file told as a password error: " + shown;
        if (box.title == "Hall of Fame" && box.buttons == MsgButtons::OK && leftOut(box)) {
            const std::string holds =
                "The Hall of Fame file \"" + rig.file(HallOfFame::kFileName).string() + "\" holds ";
            if (box.text.rfind(holds, 0) != 0 || box.text.back() != '.')
                return "a box of rows left out that does not name the file or why: " + shown;
            continue;
        }
        if (box.title != "Hall of Fame" || box.buttons != MsgButtons::OK || box.text.rfind(head, 0) != 0)
            return "a box that is none of the records': " + shown;
        std::string rest = box.text.substr(head.size());
        bool named = false;
        for (const char* operation : {"opened: ", "read to test the score: ", "read: ", "written: "})
            if (rest.rfind(operation, 0) == 0) {
                if (opened) return "a file that cannot be opened told again: " + shown;
                opened = operation[0] == 'o';
                rest.erase(0, std::string(operation).size());
                named = true;
            }
        if (!named || rest.size() < tail.size() + 3 || rest.compare(rest.size() - tail.size(), tail.size(), tail) != 0)
            return "a box of the records without its operation or reason: " + shown;
    }
    if (!before.database && !opened) return "a file that is no database not told at its opening";
    return "";
}

std::string HallOfFameTarget::checkPages(FileRig& rig, const HofPages& pages, int gameType,
                                         const HofSnapshot& file) const {
    const bool unread = anyBox(rig, " cannot be read: ") || anyBox(rig, " cannot be opened: ");
    for (int t = 0; t < 2; ++t) {
        const bool told =
            unread || anyBox(rig, std::string(" of ") + kTableNames[t] + " that no game could have written");
        if (std::string broken = pages.check(t, gameType, file.tables[t], told); !broken.empty()) return broken;
    }
    return "";
}

// A score as the end of a game brings it: IsHighScore decides, and a high one opens the form
// of the winner's name as the end of a game opens it.
std::string HallOfFameTarget::enter(FileRig& rig, int t, SplitMix& plan, const HofSnapshot& before, Entry& entry) {
    const HofSnapshot::Table& table = before.tables[t];
    const long long last = table.rows.empty() ? 50 : table.rows.back().numbers[0];
    long long score = static_cast<long long>(plan.below(300));
    switch (plan.below(6)) {
        case 0:
            score = last;
            break;
        case 1:
            score = last + 1;
            break;
        case 2:
            score = plan.chance(50) ? 32767 : -32768;
            break;
        default:
            break;
    }
    score = std::clamp(score, -32768LL, 32767LL);
    const std::string where = std::string(kTableNames[t]) + ", a score of " + std::to_string(score) + ": ";
    const std::size_t boxes = rig.boxes().size();
    Program& program = rig.program();
    if (!rig.act([&] { entry.high = program.hof.IsHighScore(t, static_cast<int>(score)); }))
        return where + "IsHighScore: " + rig.failure();
    const bool failed = std::any_of(rig.boxes().begin() + static_cast<long>(boxes), rig.boxes().end(),
                                    [](const MsgBox& box) { return !leftOut(box); });
    if (table.ours && !failed) {
        const bool high = table.rows.size() < HallOfFame::kRows || score > last;
        if (entry.high != high)
            return where + "IsHighScore says " + (entry.high ? "yes" : "no") + " for a table of " +
                   std::to_string(table.rows.size()) + " rows whose last score is " + std::to_string(last);
    } else if (table.ours) {
        return where + "IsHighScore could not read the game's own table";
    }
    if (!entry.high) return "";
    ++highScores_;
    static const char* const kNames[] = {
        "Fuzz",
        "Smith, John",
        "a:b,c:%d",
        "",
        "Twenty Letters Name!",
        "%2C%3A",
        "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9"
        "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9x",
        "O'Hara"};
    const std::string typed = kNames[plan.below(sizeof kNames / sizeof *kNames)];
    const int rounds = t ? static_cast<int>(plan.chance(90) ? 1 + plan.below(20) : 32767) : 0;
    const int won = t ? static_cast<int>(plan.below(static_cast<unsigned>(rounds) + 1)) : 0;
    const int yaku = static_cast<int>(plan.below(t ? 60 : 9));
    entry.given = plan.chance(85);
    rig.onForm = [&](Form& form) {
        auto* winner = dynamic_cast<FrmHOFWinner*>(&form);
        if (!winner) return;
        winner->setTxtHOFName(typed);
        entry.row.name = winner->txtHOFName();
        if (entry.given)
            winner->cmdOK_Click();
        else
            winner->cmdCancel_Click();
    };
    const bool ran = rig.act([&] {
        FrmHOFWinner winner(program.g, program.hof);
        winner.mScore = static_cast<int>(score);
        winner.mYakuCount = yaku;
        winner.mRoundsWon = won;
        winner.mRounds = rounds;
        winner.mFormCaption = t ? "Tournament High Score" : "Single Game High Score";
        rig.host().showModal(winner);
    });
    rig.onForm = nullptr;
    if (!ran) return where + "storing: " + rig.failure();
    entry.row.date = rig.host().dateText();
    entry.row.numbers = {score, yaku, 0, 0, 0, 0};
    if (t) {
        entry.row.numbers[2] = won;
        entry.row.numbers[3] = rounds;
        entry.row.numbers[4] = HallOfFame::storedAverage(static_cast<int>(score), rounds);
        entry.row.numbers[5] = HallOfFame::storedAverage(yaku, rounds);
    }
    return "";
}

// The game's own table after the run: its rows, with the new record in its place and the last
// of more than ten taken away; or, if nothing was stored, its rows as they were.
std::string HallOfFameTarget::checkKept(int t, const HofSnapshot& before, const HofSnapshot& after,
                                        const Entry& entry) const {
    const HofSnapshot::Table& was = before.tables[t];
    const HofSnapshot::Table& is = after.tables[t];
    if (!was.ours) return "";
    if (!is.ours) return "the game's own table is no longer whole";
    if (is.foreign != was.foreign) return "its rows that are no records changed";
    const std::vector<HofSnapshot::Row> now = canonical(is.rows);
    if (!entry.given) return now == canonical(was.rows) ? "" : "its rows changed, but nothing was stored";
    std::vector<HofSnapshot::Row> expected = was.rows;
    expected.push_back(entry.row);
    std::stable_sort(expected.begin(), expected.end(), [t](const HofSnapshot::Row& a, const HofSnapshot::Row& b) {
        return HofSnapshot::ahead(a, b, t == 1);
    });
    bool kept = false;
    if (expected.size() <= HallOfFame::kRows) {
        kept = now == canonical(expected);
    } else {
        // One of the rows alike with the last in the order goes.
        for (std::size_t i = expected.size();
             i-- > 0 && !kept && HofSnapshot::sameKey(expected[i], expected.back(), t == 1);) {
            std::vector<HofSnapshot::Row> less = expected;
            less.erase(less.begin() + static_cast<long>(i));
            kept = now == canonical(less);
        }
    }
    if (kept) return "";
    if (now == canonical(was.rows)) return "the entry of a high score was not stored";
    return "after the entry of \"" + entry.row.name + "\" with " + std::to_string(entry.row.numbers[0]) +
           " it holds other rows than its own with the new one in its place";
}

std::vector<std::uint8_t> HallOfFameTarget::sample(SplitMix& random) { return HofSampler(random, schema_).input(); }

std::string HallOfFameTarget::stats() const {
    return std::to_string(inputs_) + " inputs: " + std::to_string(databases_) + " databases, " +
           std::to_string(ownTables_) + " tables of the game's own, " + std::to_string(highScores_) + " high scores, " +
           std::to_string(given_) + " names given; " + std::to_string(toldBoxes_) + " boxes told";
}

}  // namespace petal::fuzz
