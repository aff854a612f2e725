#include "SimPlay.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <ostream>

#include "Policy.h"
#include "TempFolder.h"
#include "cards/Val.h"
#include "records/FrmHOFWinner.h"
#include "scoring/FrmScoreCard.h"
#include "platform/FatalError.h"
#include "shell/Program.h"
#include "platform/sim/SimHost.h"

namespace petal::sim {

namespace {

// Writes the trace lines and counts the ended deals.
class Tracer : public GameEvents {
public:
    Tracer(FrmMain& f, std::ostream& out, bool on) : f_(f), out_(out), on_(on) {}
    int ended = 0;

    void dealt() override {
        if (!on_) return;
        std::string line = "{\"ev\":\"deal\",\"seed\":\"" + f_.m.mDealSeed + "\",\"lead\":" + std::to_string(f_.m.mTurn) +
                           ",\"yaku\":" + (f_.g.gUseYaku ? "1" : "0") + ",\"cards\":[";
        for (int p = 0; p < 48; ++p) line += (p ? "," : "") + std::to_string(f_.m.mCards[p].Index);
        out_ << line << "]}\n";
    }
    void moved(int side, bool fromDeck, int pos, int took, int slot) override {
        if (!on_) return;
        out_ << "{\"ev\":\"move\",\"side\":" << side << ",\"from\":\"" << (fromDeck ? "flip" : "hand")
             << "\",\"pos\":" << pos << ",\"took\":" << took << ",\"slot\":" << slot << "}\n";
    }
    void claimed(int side, int pos, int slot) override {
        if (on_) out_ << "{\"ev\":\"claim\",\"side\":" << side << ",\"pos\":" << pos << ",\"slot\":" << slot << "}\n";
    }
    void dealEnded() override {
        ++ended;
        if (!on_) return;
        out_ << "{\"ev\":\"end\",\"p\":" << Val(f_.ctl.panel[0].lblPointsTotal[3].Caption)
             << ",\"c\":" << Val(f_.ctl.panel[1].lblPointsTotal[3].Caption) << ",\"pyaku\":" << complete(0)
             << ",\"cyaku\":" << complete(1) << "}\n";
    }

private:
    int complete(int side) const {
        int n = 0;
        for (int g = 0; g < 8; ++g) n += f_.m.mYakuCards[side][g] == 3 ? 1 : 0;
        return n;
    }
    FrmMain& f_;
    std::ostream& out_;
    bool on_;
};

std::vector<int> framedSlots(const TableModel& c) {
    std::vector<int> slots;
    for (std::size_t i = 0; i < c.shpTHilite.size(); ++i)
        if (c.shpTHilite[i].Visible) slots.push_back(static_cast<int>(i));
    return slots;
}

}  // namespace

bool localMove(FrmMain& f, Policy& policy) {
    if (f.m.mTurn != 0 || f.tmrComputer.Enabled() || f.g.gGameInProgress != 1 ||
        f.MousePointer() == FrmMain::kPointerHourglass)
        return false;
    if (f.ctl.shpFlipCard.Visible) {
        const std::vector<int> framed = framedSlots(f.ctl);
        if (framed.empty()) return false;
        f.play.imgTCard_Click(policy.pick(framed));
        return true;
    }
    if (f.m.mPlayerFlipped != 0) return false;
    std::vector<int> held;
    for (int i = 0; i < 8; ++i)
        if (f.ctl.imgPCard[i].hasPicture()) held.push_back(i);
    if (held.empty()) return false;
    f.play.imgPCard_Click(policy.pick(held));
    const std::vector<int> framed = framedSlots(f.ctl);
    if (framed.empty())
        f.play.imgTable_Click();
    else
        f.play.imgTCard_Click(policy.pick(framed));
    return true;
}

int play(const PlayOptions& options, std::ostream& out, std::ostream& err) {
    TempFolder folder;
    SimHost host(folder.path());
    const long h = Val(options.start), m = Val(options.start.substr(3)), s = Val(options.start.substr(6));
    host.setClock(static_cast<int>(h), static_cast<int>(m), static_cast<int>(s));
    Program program(host);
    FrmMain& f = program.frmMain;
    Tracer tracer(f, out, options.trace);
    f.events = &tracer;
    Policy policy(options.randomPolicy, options.policySeed);
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
        f.dealer.imgDeck_Click();
    });
    while (!host.ending() && !failed) {
        bool acted = false;
        runHandler(host, [&] { acted = localMove(f, policy); });
        if (!acted && !host.step()) {
            err << "petalgarden-sim: the game stopped with nothing left to run\n";
            failed = true;
        }
    }
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    char summary[160];
    std::snprintf(summary, sizeof summary, "{\"ev\":\"summary\",\"deals\":%d,\"seconds\":%.6f,\"deals_per_s\":%.1f}\n",
                  tracer.ended, seconds, seconds > 0 ? tracer.ended / seconds : 0.0);
    out << summary;
    return failed ? 1 : 0;
}

}  // namespace petal::sim
