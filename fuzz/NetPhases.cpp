#include "NetPhases.h"

#include <cstdio>

#include "NetRig.h"
#include "SimPlay.h"
#include "TableInvariants.h"

namespace petal::fuzz {

namespace {
constexpr std::int64_t kDealLimitMs = 5'000;
constexpr std::int64_t kTickMs = 500;  // the turn driver's
constexpr int kMaxActions = 600;       // moves and pauses to reach a phase, a few deals' worth
constexpr int kDealTries = 3;
}  // namespace

bool NetPhases::reach(NetPhase phase, int variant, sim::Policy& policy) {
    rig_.holdPrompts(false);
    if (!rig_.settle()) return false;
    const bool fresh = !rig_.sessionUp();
    if (fresh && !rig_.startSession()) return false;
    FrmMain& f = rig_.f();
    const auto remoteOnTurn = [&f] { return f.m.mTurn == 1 && f.tmrComputer.Enabled(); };
    switch (phase) {
        case NetPhase::AwaitDeal:
            return fresh || clearTable();
        case NetPhase::RemoteSelect:
        case NetPhase::RemoteDrop:
        case NetPhase::RemoteFlip:
            return clearTable() && deal(true, variant) && remoteOnTurn() &&
                   remoteTo(static_cast<int>(phase) - static_cast<int>(NetPhase::RemoteSelect));
        case NetPhase::RemoteFlipWaits:
            for (int i = 0; i < kDealTries; ++i) {
                if (!clearTable() || !deal(true, variant + i)) return false;
                if (playUntil([&] { return remoteOnTurn() && f.m.mCompPhase == 3 && f.ctl.imgFlipCard.hasPicture(); },
                              policy))
                    return true;
            }
            return false;
        case NetPhase::LocalFlipWaits:
            for (int i = 0; i < kDealTries; ++i) {
                if (!clearTable() || !deal(false, variant + i)) return false;
                if (playUntil(
                        [&] { return f.m.mTurn == 0 && f.ctl.shpFlipCard.Visible && f.ctl.imgFlipCard.hasPicture(); },
                        policy))
                    return true;
            }
            return false;
        case NetPhase::ScoreCard:
        case NetPhase::Rematch:
            rig_.holdPrompts(true);
            if (!clearTable() || !deal(variant % 2 == 0, variant)) return false;
            return playUntil([&] { return phase == NetPhase::ScoreCard ? rig_.cardStands() : rig_.questionStands(); },
                             policy);
    }
    return false;
}

// No deal on the table and no game running: the host restarts from the deck, the client hears
// its host's QUIT.
bool NetPhases::clearTable() {
    FrmMain& f = rig_.f();
    // The client's wait for its first deal is a bare table too.
    const auto bare = [&] {
        return f.g.gGameInProgress == 0 && !sim::TableInvariants::dealStands(f) &&
               (!rig_.host().waiting() || f.connectionStatus);
    };
    if (bare()) return true;
    if (rig_.options().hostSide) {
        // A table left from an ended game is dealt again first, so that the deck's click restarts.
        if (f.g.gGameInProgress == 0 && !rig_.act([&f] { f.dealer.imgDeck_Click(); })) return false;
        if (!rig_.runUntil([&] { return !rig_.host().waiting(); }, kDealLimitMs)) return false;
        if (!rig_.act([&f] { f.dealer.imgDeck_Click(); })) return false;
    } else {
        rig_.peer().send("QUIT");
    }
    return rig_.runUntil(bare, kDealLimitMs) && rig_.sessionUp();
}

// A deal from a seed of the variant's; the peer leads it or the program does.
bool NetPhases::deal(bool peerLeads, int variant) {
    FrmMain& f = rig_.f();
    const int h = variant % 24, m = variant * 7 % 60, s = variant * 13 % 60;
    const unsigned before = f.dealer.serial();
    if (rig_.options().hostSide) {
        rig_.host().setClock(h, m, s);
        if (!rig_.act([&] {
                f.m.mTurn = peerLeads ? 1 : 0;
                f.dealer.imgDeck_Click();
            }))
            return false;
    } else {
        char seed[16];
        std::snprintf(seed, sizeof seed, "%02d:%02d:%02d", h, m, s);
        rig_.peer().send(std::string("DEAL,") + seed + (peerLeads ? ",1" : ",0"));
    }
    return rig_.runUntil(
        [&] {
            return f.dealer.serial() != before && f.g.gGameInProgress == 1 && !f.connectionStatus &&
                   !rig_.host().waiting();
        },
        kDealLimitMs);
}

// The peer's turn, from its start to the given phase of the driver.
bool NetPhases::remoteTo(int phase) {
    FrmMain& f = rig_.f();
    if (phase == 0) return true;
    if (!rig_.sendLegal()) return false;
    return rig_.runUntil([&] { return f.m.mCompPhase == phase && !rig_.host().waiting(); }, 4 * kTickMs);
}

bool NetPhases::playUntil(const std::function<bool()>& reached, sim::Policy& policy) {
    FrmMain& f = rig_.f();
    for (int i = 0; i < kMaxActions; ++i) {
        if (reached()) return true;
        if (!rig_.sessionUp()) return false;
        if (!rig_.host().waiting() && sim::canMove(f)) {
            if (!rig_.act([&] { sim::localMove(f, policy); })) return false;
            continue;
        }
        if (!rig_.sendLegal() && !rig_.runFor(kTickMs / 5)) return false;
    }
    return false;
}

}  // namespace petal::fuzz
