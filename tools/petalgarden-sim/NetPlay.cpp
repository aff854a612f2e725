#include "NetPlay.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <ostream>

#include "MirrorCheck.h"
#include "Policy.h"
#include "SimPlay.h"
#include "TempFolder.h"
#include "Tracer.h"
#include "net/FrmConnectionStatus.h"
#include "platform/FatalError.h"
#include "platform/sim/SimHost.h"
#include "platform/sim/SimNetwork.h"
#include "platform/sim/SimSocket.h"
#include "platform/sim/SimWorld.h"
#include "records/FrmHOFWinner.h"
#include "scoring/FrmScoreCard.h"
#include "shell/FrmSetup.h"
#include "shell/Program.h"

namespace petal::sim {

namespace {

constexpr std::int64_t kSettleLimitMs = 60'000;   // for a broken session to end as designed
constexpr std::int64_t kStallLimitMs = 300'000;   // without a move anywhere

// One program of the pair, with its folder, its scripted answers and its player.
struct Side {
    Side(SimWorld& world, bool hostSide, const NetOptions& o, std::ostream* trace)
        : host(folder.path()),
          isHost(hostSide),
          policy(o.randomPolicy, hostSide ? o.policySeed : o.policySeed * 2654435761u + 1) {
        world.join(this->host);
        program = std::make_unique<Program>(this->host);
        tracer = std::make_unique<Tracer>(program->frmMain, trace);
        program->frmMain.events = tracer.get();
    }
    FrmMain& f() { return program->frmMain; }
    const char* name() const { return isHost ? "host" : "client"; }
    // The session has ended for this side, as a loss of the connection ends it.
    bool settled() {
        if (host.ending() || f().g.gPlayMode == 0) return true;
        return isHost && f().socketState() == Socket::sckClosed;
    }

    TempFolder folder;
    SimHost host;
    std::unique_ptr<Program> program;
    std::unique_ptr<Tracer> tracer;
    bool isHost;
    Policy policy;
    Side* other = nullptr;
    int lastError = 0;
    bool moved = false;  // what the last move that was begun has told so far
};

class NetRun {
public:
    NetRun(const NetOptions& options, std::ostream& out, std::ostream& err)
        : options_(options), err_(err), host_(world_, true, options, options.trace ? &out : nullptr),
          client_(world_, false, options, nullptr) {
        host_.other = &client_;
        client_.other = &host_;
        host_.tracer->log = &mirror_.host;
        client_.tracer->log = &mirror_.client;
        client_.tracer->mirrored = true;
        world_.network().setFaults(options.faults);
        for (Side* side : {&host_, &client_}) {
            side->host.onMsgBox = [this, side](const MsgBox& box) { return answer(*side, box); };
            side->host.onForm = [this, side](Form& form) { act(*side, form); };
            side->f().net.chatReceived = [this, side, show = side->f().net.chatReceived](const std::string& line) {
                checkChat(*side, line);
                show(line);
            };
        }
    }
    ~NetRun() { world_.endAll(); }
    NetRun(const NetRun&) = delete;
    NetRun& operator=(const NetRun&) = delete;

    int run();
    int deals() const { return std::min(host_.tracer->ended, client_.tracer->ended); }
    int faults() { return world_.network().faults(); }
    bool mismatched() const { return mismatch_; }

private:
    MsgResult answer(Side& side, const MsgBox& box);
    void act(Side& side, Form& form);
    void setUp(Side& side);
    bool tryMove(Side& side);
    bool deal(Side& side);
    bool move(Side& side);
    bool recover();
    bool check();
    void checkChat(Side& side, const std::string& line);
    bool fail(const std::string& why) {
        if (!failed_) {
            err_ << "petalgarden-sim: " << why << "\n";
            for (Side* side : {&host_, &client_}) {
                const auto& boxes = side->host.shownBoxes();
                for (std::size_t i = boxes.size() > 6 ? boxes.size() - 6 : 0; i < boxes.size(); ++i)
                    err_ << "  " << side->name() << " had shown: " << boxes[i].title << ": " << boxes[i].text << "\n";
                FrmMain& f = side->f();
                err_ << "  " << side->name() << ": mode " << f.g.gPlayMode << ", game " << f.g.gGameInProgress
                     << ", socket " << f.socketState() << ", acted on " << f.g.gConnectState << ", turn " << f.m.mTurn
                     << ", phase " << f.m.mCompPhase << ", plays " << f.m.mPlayerPlays << "/" << f.m.mCompPlays
                     << (side->host.waiting() ? ", waiting" : "") << (f.connectionStatus ? ", a wait form up" : "")
                     << (f.m.mAutoDeal ? ", auto deal" : "") << (f.m.mConnected ? ", connected" : "") << "\n";
            }
        }
        failed_ = true;
        return false;
    }

    NetOptions options_;
    std::ostream& err_;
    SimWorld world_;
    MirrorCheck mirror_;
    Side host_, client_;
    bool failed_ = false;
    bool mismatch_ = false;
};

MsgResult NetRun::answer(Side& side, const MsgBox& box) {
    if (box.text == "Do you want to play again?") {
        if (side.tracer->ended < options_.deals) return MsgResult::Yes;
        // The last No waits for the other side's last deal, as two players finish together.
        Side& other = *side.other;
        side.host.waitUntil([&] { return other.tracer->ended >= options_.deals || other.settled(); });
        return MsgResult::No;
    }
    if (box.text == "Do you want to try and reconnect?") return side.lastError == 10061 ? MsgResult::Yes : MsgResult::No;
    if (box.title.rfind("Winsock Error ", 0) == 0) {
        side.lastError = std::stoi(box.title.substr(14));
        return MsgResult::OK;
    }
    if (box.title == "Reset Game" || box.title == "Cancel Connection" || box.title == "Close Connection" ||
        box.title == "Opponent Connected")
        return MsgResult::Yes;
    if (box.title == "Connection Successful" || box.title == "Remote Connection Closed" ||
        box.title == "Client Connection Closed" || box.title == "Rematch Declined" || box.title == "Session Restarted")
        return MsgResult::OK;
    fail(std::string(side.name()) + ": " + box.title + ": " + box.text);
    return box.buttons == MsgButtons::YesNo ? MsgResult::No : MsgResult::OK;
}

void NetRun::act(Side& side, Form& form) {
    if (auto* setup = dynamic_cast<FrmSetup*>(&form)) {
        if (side.isHost) {
            const bool tournament = options_.tournamentRounds > 0;
            setup->selectGameType(tournament ? 1 : 0);
            if (tournament) setup->setText(setup->txtRounds, std::to_string(options_.tournamentRounds));
            setup->chkUseYaku = options_.yaku ? 1 : 0;
            setup->selectGame(1);
        } else {
            setup->selectGame(2);
            setup->setText(setup->txtHostIP, "127.0.0.1");
        }
        setup->cmdOK_Click();
    } else if (auto* status = dynamic_cast<FrmConnectionStatus*>(&form)) {
        // A wait stands until the game unloads it; a player cancels one whose session is gone.
        FrmMain& f = side.f();
        const bool rematch = status->StatusCaption == "Please Wait...";
        side.host.waitUntil([&] {
            return !status->loaded() || f.g.gPlayMode == 0 || (rematch && f.socketState() != Socket::sckConnected);
        });
        if (status->loaded()) status->cmdCancel_Click();
    } else if (auto* card = dynamic_cast<FrmScoreCard*>(&form)) {
        card->cmdOK_Click();
    } else if (auto* winner = dynamic_cast<FrmHOFWinner*>(&form)) {
        winner->cmdCancel_Click();
    }
    if (form.loaded()) form.Unload();
}

void NetRun::setUp(Side& side) {
    world_.act(side.host, [&side] { side.f().mnuSetup_Click(); });
}

// The host starts a deal from the deck once its client waits for it; either player moves when
// it is on turn and its program is not inside a wait.
bool NetRun::tryMove(Side& side) {
    if (side.host.ending() || side.host.waiting()) return false;
    FrmMain& f = side.f();
    if (side.isHost && f.g.gPlayMode == 1 && f.g.gGameInProgress == 0 && f.g.gConnectState == Socket::sckConnected &&
        f.socketState() == Socket::sckConnected && client_.f().m.mConnected && !f.m.mAutoDeal)
        return deal(side);
    return canMove(f) && move(side);
}

// Acting is kept apart from tryMove, which runs twice per step and mostly finds nothing to do,
// so that tryMove needs no frame of its own.
[[gnu::noinline]] bool NetRun::deal(Side& side) {
    world_.act(side.host, [&side] { side.f().dealer.imgDeck_Click(); });
    return true;
}

// A move may pause (a flip's half second) and finish after act has returned: its result goes
// where it outlives this frame. The program waits meanwhile, so no move of its begins before
// this one has ended.
[[gnu::noinline]] bool NetRun::move(Side& side) {
    side.moved = false;
    world_.act(side.host, [&side] { side.moved = localMove(side.f(), side.policy); });
    return side.moved;
}

bool NetRun::check() {
    const std::string diff = mirror_.compare();
    if (diff.empty()) return true;
    mismatch_ = true;
    return fail("the copies parted at " + diff);
}

// Each line of chat that the fault plan sent arrives as it was typed; lines lost with a
// dropped connection are passed over.
void NetRun::checkChat(Side& side, const std::string& line) {
    auto& sent = world_.network().chatLinesTo(static_cast<SimSocket&>(*side.f().tcpMultiPlayer).id());
    while (!sent.empty() && sent.front() != line) sent.pop_front();
    if (sent.empty()) {
        fail(std::string(side.name()) + " got the chat line \"" + line.substr(0, 40) + "\", which no one typed");
        return;
    }
    sent.pop_front();
}

// After a dropped connection both sides end their session as designed, by themselves; then
// both are set up again and the run goes on.
bool NetRun::recover() {
    world_.network().clearDropped();
    // Set up again from the menu, which no modal form may cover.
    if (!world_.runUntil([this] { return host_.settled() && client_.settled() && !host_.host.modal() && !client_.host.modal(); },
                         kSettleLimitMs))
        return fail("after the connection dropped, the two sides did not end their session as designed");
    if (host_.host.ending() || client_.host.ending()) return true;
    setUp(host_);
    setUp(client_);
    mirror_.forgetUnmatched();
    const int done = deals();
    host_.tracer->ended = client_.tracer->ended = done;
    return true;
}

int NetRun::run() {
    world_.act(host_.host, [this] { host_.program->Main(); });
    world_.act(client_.host, [this] { client_.program->Main(); });
    setUp(host_);
    setUp(client_);
    std::int64_t lastProgress = world_.now();
    int lastCompared = 0;
    while (!failed_) {
        if (host_.host.ending() && client_.settled()) break;
        if (client_.host.ending() && host_.settled()) break;
        if (world_.network().dropped() && !recover()) break;
        if (!tryMove(host_) && !tryMove(client_) && !world_.step()) {
            fail("the session stopped with nothing left to run");
            break;
        }
        if (!check()) break;
        if (mirror_.compared() != lastCompared) {
            lastCompared = mirror_.compared();
            lastProgress = world_.now();
        } else if (world_.now() - lastProgress > kStallLimitMs) {
            fail("the session stalled: no move for five minutes of play");
        }
    }
    if (!failed_ && deals() < options_.deals)
        fail("the session ended after " + std::to_string(deals()) + " of " + std::to_string(options_.deals) + " deals");
    return failed_ ? 1 : 0;
}

}  // namespace

int net(const NetOptions& options, std::ostream& out, std::ostream& err) {
    const auto started = std::chrono::steady_clock::now();
    int code = 1;
    int deals = 0, faults = 0;
    bool mismatch = false;
    {
        NetRun run(options, out, err);
        try {
            code = run.run();
        } catch (const std::exception& e) {
            err << "petalgarden-sim: " << e.what() << "\n";
        }
        deals = run.deals();
        faults = run.faults();
        mismatch = run.mismatched();
    }
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    char summary[200];
    std::snprintf(summary, sizeof summary,
                  "{\"ev\":\"summary\",\"deals\":%d,\"mismatches\":%d,\"faults\":%d,\"seconds\":%.6f,\"deals_per_s\":%.1f}\n",
                  deals, mismatch ? 1 : 0, faults, seconds, seconds > 0 ? deals / seconds : 0.0);
    out << summary;
    return code;
}

}  // namespace petal::sim
