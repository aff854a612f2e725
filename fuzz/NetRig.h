#pragma once
// One program of the game and a raw peer on one simulated clock: the program as host or as
// client, in single games or tournaments. The rig answers the program's boxes and forms as a
// player would, can hold the rematch question or the score card open while bytes arrive, sets
// the session up again when it was closed, and knows what a correct peer would send next.
// Anything a player would never see (an unexpected box, a program that throws) is kept as
// the rig's failure.
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "RawPeer.h"
#include "TempFolder.h"
#include "platform/sim/SimHost.h"
#include "platform/sim/SimWorld.h"
#include "shell/GameEvents.h"
#include "shell/Program.h"

namespace petal::fuzz {

class NetRig : private GameEvents {
public:
    struct Options {
        bool hostSide = true;  // the program hosts; the peer joins it
        bool tournament = false;
        bool yaku = true;
    };
    static constexpr int kRounds = 2;
    static constexpr int kPort = 4800;

    NetRig(const Options& options, const std::filesystem::path& scratch);
    ~NetRig();
    NetRig(const NetRig&) = delete;
    NetRig& operator=(const NetRig&) = delete;

    const Options& options() const { return options_; }
    FrmMain& f() { return program_->frmMain; }
    SimHost& host() { return host_; }
    SimWorld& world() { return world_; }
    RawPeer& peer() { return peer_; }

    // The rig can no longer be used: its program ended or threw. Make a new one.
    bool spent() const { return host_.ending() || !failure_.empty(); }
    const std::string& failure() const { return failure_; }
    void fail(const std::string& why) {
        if (failure_.empty()) failure_ = why;
    }

    // Both ends are connected and the program plays in the rig's network mode.
    bool linkUp();
    // The link is up and the program plays by the rig's options.
    bool sessionUp();
    // From single play: Setup, the connection and the host's options. False if it failed.
    bool startSession();
    // Lets held prompts go and brings the program out of every wait: a wait that a correct
    // peer would end is ended so; one that none would is cancelled. False if it stays waiting.
    bool settle();

    // What a correct peer would send now, or "" when it would wait; the same state never gets
    // the same message twice.
    std::string legalPeerMessage();
    // Sends a correct peer's message and lets it be taken in.
    bool sendLegal();

    // The rematch question and the score card stand until released.
    void holdPrompts(bool hold) { holding_ = hold; }
    bool questionStands() const { return questionOpen_; }
    bool cardStands() const { return cardOpen_; }
    // The last deal was dealt in single play, against the computer.
    bool lastDealAlone() const { return lastDealAlone_; }

    // Runs the world until done() holds, for at most ms of virtual time and maxSteps events.
    // False if done() did not come; a run that used up its events with time left is a spin.
    bool runUntil(const std::function<bool()>& done, std::int64_t ms, int maxSteps = kMaxSteps);
    // Runs the world for ms of virtual time, at most maxSteps events; false on a spin.
    bool runFor(std::int64_t ms, int maxSteps = kMaxSteps);
    // Runs fn on the program's stack, as input to it; false if the program failed.
    bool act(const std::function<void()>& fn);

    // Sessions started and boxes shown, for the fuzz target's book-keeping.
    int sessions() const { return sessions_; }
    std::size_t boxesShown() const { return host_.shownBoxes().size(); }

    static constexpr int kMaxSteps = 20'000;

private:
    void dealt() override { lastDealAlone_ = f().g.gPlayMode == 0; }
    MsgResult answer(const MsgBox& box);
    void onForm(Form& form);
    std::string peerMessage();
    std::string stateKey();

    Options options_;
    sim::TempFolder programFolder_, peerFolder_;
    SimWorld world_;
    SimHost host_;
    std::unique_ptr<Program> program_;
    RawPeer peer_;
    std::string failure_;
    bool holding_ = false;
    bool questionOpen_ = false;
    bool cardOpen_ = false;
    bool cancelWaits_ = false;
    bool lastDealAlone_ = false;
    int sessions_ = 0;
    unsigned scopSerial_ = ~0u;  // the deal for which the peer has opened its score card
    std::string lastKey_;
};

}  // namespace petal::fuzz
