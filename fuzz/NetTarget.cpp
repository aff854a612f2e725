#include "NetTarget.h"

#include "FuzzInput.h"
#include "NetPhases.h"
#include "NetSampler.h"
#include "SimPlay.h"
#include "TableInvariants.h"

namespace petal::fuzz {

namespace {

constexpr std::uint8_t kLocalMove = 0x20, kLegalFirst = 0x40, kRepeat = 0x80;
constexpr int kRepeats = 256;

std::int64_t pauseOf(std::uint8_t control) {
    const int code = control & 0x1F;
    return code < 8 ? code : (code - 7) * 50;
}

int slotOf(const NetRig::Options& o) { return (o.hostSide ? 0 : 4) + (o.tournament ? 2 : 0) + (o.yaku ? 1 : 0); }

bool localHandEmpty(const FrmMain& f) {
    for (const Image& card : f.ctl.imgPCard)
        if (card.hasPicture()) return false;
    return true;
}

// A live deal that nobody can carry on: the peer's turn without its driver, or the local
// player's turn without a move.
std::string stuck(NetRig& rig) {
    FrmMain& f = rig.f();
    if (!rig.sessionUp() || rig.host().waiting() || f.g.gGameInProgress != 1 || !sim::TableInvariants::dealStands(f))
        return "";
    if (f.m.mPlayerPlays == 8 && f.m.mCompPlays == 8) return "";
    if (f.m.mTurn == 1) return f.tmrComputer.Enabled() ? "" : "the peer is on turn but the turn driver has stopped";
    if (f.tmrComputer.Enabled() || f.tmrFlipTimer.Enabled()) return "";
    if (!sim::canMove(f)) return "the local player is on turn but may not move";
    if (!f.ctl.shpFlipCard.Visible && localHandEmpty(f)) return "the local player is on turn with no card to play";
    return "";
}

}  // namespace

NetTarget::NetTarget(std::filesystem::path scratch) : scratch_(std::move(scratch)) {}

NetTarget::~NetTarget() {
    for (Slot& slot : slots_) retire(slot);
}

// A program's stack is left by its waits before the rig goes, so that nothing on it is lost.
void NetTarget::retire(Slot& slot) {
    if (slot.rig && !slot.rig->spent()) slot.rig->settle();
    slot.rig.reset();
    slot.inputs = 0;
}

NetRig& NetTarget::rigFor(const NetRig::Options& options) {
    Slot& slot = slots_[slotOf(options)];
    if (slot.rig && (slot.rig->spent() || slot.inputs >= kInputsPerRig)) retire(slot);
    if (!slot.rig) {
        slot.rig = std::make_unique<NetRig>(options, scratch_);
        ++rigs_;
    }
    ++slot.inputs;
    current_ = &slot;
    return *slot.rig;
}

std::string NetTarget::run(const std::uint8_t* data, std::size_t size) {
    FuzzInput in(data, size);
    const std::uint8_t head = in.byte();
    const int variant = in.byte();
    const auto phase = static_cast<NetPhase>((head >> 1) & 7);
    NetRig::Options options;
    options.hostSide = (head & 1) == 0;
    options.yaku = (head & 0x10) == 0;
    options.tournament = phase == NetPhase::ScoreCard || (phase != NetPhase::Rematch && (head & 0x20) != 0);
    NetRig& rig = rigFor(options);
    ++inputs_;
    sim::Policy policy(true, static_cast<std::uint64_t>(variant));
    const std::string where = std::string(options.hostSide ? "host" : "client") + ", " + phaseName(phase) + ": ";
    if (!NetPhases(rig).reach(phase, variant, policy)) {
        if (!rig.failure().empty()) return where + "on the way: " + rig.failure();
        ++unreached_[static_cast<int>(phase)];
        retire(*current_);
        return "";
    }
    ++reached_[static_cast<int>(phase)];
    if (const std::string broken = sim::TableInvariants::check(rig.f()); !broken.empty())
        return where + "before the input: " + broken;
    rig.peer().forgetSent();
    const std::size_t boxes = rig.boxesShown();
    for (int piece = 0; in.remaining() > 0 && piece < kMaxPieces; ++piece)
        if (const std::string broken = deliver(rig, in, policy); !broken.empty()) return where + broken;
    rig.runFor(kTailMs);
    const std::string broken = verdict(rig, boxes);
    return broken.empty() ? broken : where + broken;
}

std::string NetTarget::deliver(NetRig& rig, FuzzInput& in, sim::Policy& policy) {
    const std::size_t length = in.byte();
    const std::uint8_t control = in.byte();
    const std::string bytes = in.bytes(length);
    if (!rig.runFor(pauseOf(control))) return rig.failure();
    if (const std::string broken = sim::TableInvariants::check(rig.f()); !broken.empty()) return broken;
    // The local player acts: answers the question or closes the score card that stands, or
    // makes a move if one is open to it.
    FrmMain& f = rig.f();
    if (control & kLocalMove) {
        if (rig.questionStands() || rig.cardStands()) {
            rig.holdPrompts(false);
            if (!rig.act([] {})) return rig.failure();
        } else if (!rig.host().waiting() && sim::canMove(f) && !rig.act([&] { sim::localMove(f, policy); })) {
            return rig.failure();
        }
    }
    std::string piece = (control & kLegalFirst) ? rig.legalPeerMessage() + bytes : bytes;
    if (control & kRepeat) {
        std::string repeated;
        repeated.reserve(piece.size() * kRepeats);
        for (int i = 0; i < kRepeats; ++i) repeated += piece;
        piece.swap(repeated);
    }
    rig.peer().send(piece);
    return "";
}

std::string NetTarget::verdict(NetRig& rig, std::size_t boxesBefore) {
    if (!rig.failure().empty()) return rig.failure();
    const FrmMain& f = rig.f();
    if (std::string broken = sim::TableInvariants::check(f); !broken.empty()) return broken;
    const auto& boxes = rig.host().shownBoxes();
    bool told = false;
    for (std::size_t i = boxesBefore; i < boxes.size(); ++i) told = told || boxes[i].title == "Out of Step";
    // Out of step, the session's game is gone: the program plays alone, and any deal on its
    // table is one it dealt alone (a rematch that its player had asked for, say).
    if (told) {
        ++outOfStep_;
        if (f.g.gPlayMode != 0 || f.socketState() != 0 || (sim::TableInvariants::dealStands(f) && !rig.lastDealAlone()))
            return "after \"Out of Step\" the program does not play alone at a table of its own (mode " +
                   std::to_string(f.g.gPlayMode) + ", socket " + std::to_string(f.socketState()) + ", game " +
                   std::to_string(f.g.gGameInProgress) + ")";
    }
    return stuck(rig);
}

std::vector<std::uint8_t> NetTarget::sample(SplitMix& random) { return NetSampler(random).input(); }

std::string NetTarget::stats() const {
    std::string line = std::to_string(inputs_) + " inputs, " + std::to_string(rigs_) + " rigs, " +
                       std::to_string(outOfStep_) + " out of step; reached/missed:";
    for (int p = 0; p < kNetPhases; ++p)
        line += std::string(" ") + phaseName(static_cast<NetPhase>(p)) + " " + std::to_string(reached_[p]) + "/" +
                std::to_string(unreached_[p]);
    int sessions = 0;
    for (const Slot& slot : slots_) sessions += slot.rig ? slot.rig->sessions() : 0;
    return line + "; sessions of the live rigs " + std::to_string(sessions);
}

}  // namespace petal::fuzz
