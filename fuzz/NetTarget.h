#pragma once
// The receive path of a network game as a fuzz target: framing, dispatch, the remote player's
// replay and the chat hook, of a host or of a client, at each phase of a deal.
//
// An input is read thus:
//   byte 0   bit 0: 0 the program hosts, 1 it joins; bits 1-3: the phase (NetPhase);
//            bit 4: yaku off; bit 5: a tournament (always for ScoreCard, never for Rematch)
//   byte 1   the deal's seed and the local player's choices
//   then pieces, each a length byte, a control byte and that many bytes to send:
//            control bits 0-4: the pause before the piece (0-7 ms, then steps of 50 ms to
//            1.2 s); bit 5: the local player acts first (answers the question or closes the
//            score card that stands, or else moves if it may); bit 6: a correct peer's
//            next message goes before the bytes; bit 7: the piece is sent 256 times over.
// The raw peer sends each piece at its time; then the world runs a bounded while. The table's
// invariants are checked before every piece and at the end; after "Out of Step" the program
// must be in single play with a bare table; a live session must not be stuck.
#include <array>
#include <filesystem>
#include <memory>

#include "FuzzTarget.h"
#include "NetPhase.h"
#include "NetRig.h"
#include "Policy.h"

namespace petal::fuzz {

class FuzzInput;

class NetTarget : public FuzzTarget {
public:
    static constexpr int kMaxPieces = 64;
    static constexpr std::int64_t kTailMs = 1'500;  // past the settle pause and two driver ticks
    static constexpr int kInputsPerRig = 2'000;     // a rig's records grow; a fresh one now and then

    explicit NetTarget(std::filesystem::path scratch);
    ~NetTarget() override;

    const char* name() const override { return "net"; }
    std::string run(const std::uint8_t* data, std::size_t size) override;
    std::vector<std::uint8_t> sample(SplitMix& random) override;
    std::string stats() const override;
    // Inputs whose phase was reached, and those whose phase could not be.
    long reached(NetPhase phase) const { return reached_[static_cast<int>(phase)]; }
    long missed(NetPhase phase) const { return unreached_[static_cast<int>(phase)]; }
    // Inputs after which the program had told its player "Out of Step".
    long outOfStep() const { return outOfStep_; }

private:
    struct Slot {
        std::unique_ptr<NetRig> rig;
        int inputs = 0;
    };

    NetRig& rigFor(const NetRig::Options& options);
    void retire(Slot& slot);
    std::string deliver(NetRig& rig, FuzzInput& in, sim::Policy& policy);
    std::string verdict(NetRig& rig, std::size_t boxesBefore);

    std::filesystem::path scratch_;
    std::array<Slot, 8> slots_;
    Slot* current_ = nullptr;
    std::array<long, kNetPhases> reached_{}, unreached_{};
    long inputs_ = 0, outOfStep_ = 0, rigs_ = 0;
};

}  // namespace petal::fuzz
