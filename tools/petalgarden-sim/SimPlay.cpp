#include "SimPlay.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <ostream>
#include <span>

#include "Policy.h"
#include "TempFolder.h"
#include "Tracer.h"
#include "cards/Val.h"
#include "opponent/StrongSearch.h"
#include "records/FrmHOFWinner.h"
#include "scoring/FrmScoreCard.h"
#include "platform/FatalError.h"
#include "shell/Program.h"
#include "platform/sim/SimHost.h"

namespace petal::sim {

namespace {

// Slots in ascending order, counted on the stack: a move is made a million times a run.
struct Slots {
    std::array<int, 64> at{};
    std::size_t count = 0;
    void add(int slot) {
        if (count < at.size()) at[count++] = slot;
    }
    bool empty() const { return count == 0; }
    std::span<const int> span() const { return {at.data(), count}; }
};

Slots framedSlots(const TableModel& c) {
    Slots slots;
    for (std::size_t i = 0; i < c.shpTHilite.size(); ++i)
        if (c.shpTHilite[i].Visible) slots.add(static_cast<int>(i));
    return slots;
}

// The time this thread has run, which a busy machine does not stretch.
double cpuMilliseconds() {
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return now.tv_sec * 1e3 + now.tv_nsec / 1e6;
}

// The moves the rules allow the side: a card onto each of its matches, or laid down.
int movesIn(const Sight& sight) {
    const DealState& s = sight.seen;
    int moves = 0;
    for (int i = 0; i < 8; ++i) {
        const int card = sight.turned >= 0 ? (i == 0 ? sight.turned : -1) : s.hand[sight.side][i];
        if (card < 0) continue;
        int matches = 0;
        for (int t = 0; t < s.tableSlots; ++t) matches += s.matches(card, t) ? 1 : 0;
        moves += std::max(matches, 1);
    }
    return moves;
}

// A whole move as a computer would choose it for the local player.
bool chosenMove(FrmMain& f, Chooser chooser, std::vector<double>* choiceTimes) {
    const double started = cpuMilliseconds();
    const Sight sight = sightOf(f, 0);
    HandMove move;
    if (chooser == Chooser::Strong) {
        move = StrongSearch::choose(sight);
        // Only a choice between moves is timed; a forced one asks nothing of the search.
        if (choiceTimes && movesIn(sight) > 1) choiceTimes->push_back(cpuMilliseconds() - started);
    } else if (sight.turned >= 0) move = {-1, sight.seen.bestMatch(sight.turned)};
    else move = standardHand(sight.seen);
    if (move.handSlot < 0 && move.tableSlot < 0) return false;
    if (move.handSlot >= 0) f.play.imgPCard_Click(move.handSlot);
    if (move.tableSlot >= 0) f.play.imgTCard_Click(move.tableSlot);
    else f.play.imgTable_Click();
    return true;
}

// The spread of the times per choice: median, 90th and 99th percentile, longest.
std::string timingLine(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    const auto at = [&times](double q) { return times.empty() ? 0.0 : times[static_cast<std::size_t>(q * (times.size() - 1))]; };
    char line[200];
    std::snprintf(line, sizeof line,
                  "{\"ev\":\"timing\",\"choices\":%zu,\"median_ms\":%.3f,\"p90_ms\":%.3f,\"p99_ms\":%.3f,\"max_ms\":%.3f}\n",
                  times.size(), at(0.5), at(0.9), at(0.99), at(1.0));
    return line;
}

}  // namespace

bool localMove(FrmMain& f, Policy& policy, std::vector<double>* choiceTimes) {
    if (!canMove(f)) return false;
    if (policy.chooser() != Chooser::None) return chosenMove(f, policy.chooser(), choiceTimes);
    if (f.ctl.shpFlipCard.Visible) {
        const Slots framed = framedSlots(f.ctl);
        if (framed.empty()) return false;
        f.play.imgTCard_Click(policy.pick(framed.span()));
        return true;
    }
    if (f.m.mPlayerFlipped != 0) return false;
    Slots held;
    for (int i = 0; i < 8; ++i)
        if (f.ctl.imgPCard[i].hasPicture()) held.add(i);
    if (held.empty()) return false;
    f.play.imgPCard_Click(policy.pick(held.span()));
    const Slots framed = framedSlots(f.ctl);
    if (framed.empty())
        f.play.imgTable_Click();
    else
        f.play.imgTCard_Click(policy.pick(framed.span()));
    return true;
}

int play(const PlayOptions& options, std::ostream& out, std::ostream& err) {
    TempFolder folder;
    SimHost host(folder.path());
    const long h = Val(options.start), m = Val(options.start.substr(3)), s = Val(options.start.substr(6));
    host.setClock(static_cast<int>(h), static_cast<int>(m), static_cast<int>(s));
    Program program(host);
    FrmMain& f = program.frmMain;
    Tracer tracer(f, options.trace ? &out : nullptr);
    f.events = &tracer;
    Policy policy(options.randomPolicy, options.policySeed, options.chooser);
    bool failed = false;

    host.onMsgBox = [&](const MsgBox& box) {
        if (box.text == "Do you want to play again?") return tracer.ended < options.deals ? MsgResult::Yes : MsgResult::No;
        err << "petalgarden-sim: " << box.title << ": " << box.text << "\n";
        failed = true;
        return MsgResult::OK;
    };
    host.onForm = [&](Form& form) {
        if (auto* card = dynamic_cast<FrmScoreCard*>(&form)) {
            card->cmdOK_Click();
            if (tracer.ended >= options.deals) host.endProgram();
        } else if (auto* winner = dynamic_cast<FrmHOFWinner*>(&form)) {
            winner->cmdCancel_Click();
        } else {
            form.Unload();
        }
    };

    const auto started = std::chrono::steady_clock::now();
    runHandler(host, [&] {
        program.Main();
        const bool tournament = options.tournamentRounds > 0;
        f.settings.WriteSettings(tournament ? 1 : 0, tournament ? options.tournamentRounds : 10, options.yaku ? -1 : 0, 0);
        if (options.strongComputer) f.options.set(Computer::kOption, "strong");
        f.dealer.imgDeck_Click();
    });
    bool acted = false;
    std::vector<double> choiceTimes;
    const std::function<void()> move = [&] { acted = localMove(f, policy, options.timing ? &choiceTimes : nullptr); };
    while (!host.ending() && !failed) {
        acted = false;
        runHandler(host, move);
        if (!acted && !host.step()) {
            err << "petalgarden-sim: the game stopped with nothing left to run\n";
            failed = true;
        }
    }
    out << tracer.summary(std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count());
    if (options.timing) err << timingLine(std::move(choiceTimes));
    return failed ? 1 : 0;
}

}  // namespace petal::sim
