// The receive path of both sides under the seeded fuzzer and its kept inputs, and the harness:
// every phase stands when an input begins.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "FuzzRuns.h"
#include "NetPhases.h"
#include "NetRig.h"
#include "NetTarget.h"
#include "TableInvariants.h"

namespace petal::fuzz {
namespace {

constexpr long kSeededRuns = 100'000;

TEST(NetFuzz, ASeededRunOfAHundredThousandInputsBreaksNoRule) {
    NetTarget target(fuzzScratch());
    expectSeededRunClean(target, kSeededRuns);
    // A phase that inputs rarely reach is a phase that is not fuzzed.
    for (int p = 0; p < kNetPhases; ++p) {
        const auto phase = static_cast<NetPhase>(p);
        EXPECT_GT(target.reached(phase), kSeededRuns / 10) << phaseName(phase);
        EXPECT_LT(target.missed(phase), target.reached(phase) / 100) << phaseName(phase);
    }
}

TEST(NetFuzz, TheKeptInputsRunClean) {
    EXPECT_GE(expectKeptInputsClean<NetTarget>("net"), 2 * kNetPhases) << "a seed for each side and phase";
}

// The state that each phase promises, as the program's model shows it.
bool stands(NetRig& rig, NetPhase phase) {
    FrmMain& f = rig.f();
    const bool remoteTurn = f.m.mTurn == 1 && f.tmrComputer.Enabled() && f.g.gGameInProgress == 1;
    switch (phase) {
        case NetPhase::AwaitDeal:
            return f.g.gGameInProgress == 0 && !sim::TableInvariants::dealStands(f);
        case NetPhase::RemoteSelect:
            return remoteTurn && f.m.mCompPhase == 0 && f.m.mCompPlays == 0;
        case NetPhase::RemoteDrop:
            return remoteTurn && f.m.mCompPhase == 1;
        case NetPhase::RemoteFlip:
            return remoteTurn && f.m.mCompPhase == 2;
        case NetPhase::RemoteFlipWaits:
            return remoteTurn && f.m.mCompPhase == 3 && f.ctl.imgFlipCard.hasPicture();
        case NetPhase::LocalFlipWaits:
            return f.m.mTurn == 0 && f.ctl.shpFlipCard.Visible;
        case NetPhase::ScoreCard:
            return rig.cardStands() && f.scoreCard != nullptr;
        case NetPhase::Rematch:
            return rig.questionStands();
    }
    return false;
}

TEST(NetFuzz, EveryPhaseStandsOnBothSidesWhenItsInputBegins) {
    for (bool hostSide : {true, false}) {
        for (int p = 0; p < kNetPhases; ++p) {
            const auto phase = static_cast<NetPhase>(p);
            NetRig::Options options;
            options.hostSide = hostSide;
            options.tournament = phase == NetPhase::ScoreCard;
            NetRig rig(options, fuzzScratch());
            sim::Policy policy(true, 3);
            const char* side = hostSide ? "host" : "client";
            ASSERT_TRUE(NetPhases(rig).reach(phase, 3, policy))
                << side << " " << phaseName(phase) << ": " << rig.failure();
            EXPECT_TRUE(stands(rig, phase)) << side << " " << phaseName(phase);
            EXPECT_TRUE(rig.sessionUp()) << side << " " << phaseName(phase);
            EXPECT_EQ(sim::TableInvariants::check(rig.f()), "") << side << " " << phaseName(phase);
            EXPECT_TRUE(rig.settle()) << side << " " << phaseName(phase) << ": the rig leaves its waits";
        }
    }
}

// Inputs of nothing but a correct peer's moves and the local player's: the rig's peer is a
// true copy of the game, so that a session it ends is ended by the bytes, not by the rig.
TEST(NetFuzz, ACorrectPeerNeverPutsTheProgramOutOfStep) {
    NetTarget target(fuzzScratch());
    SplitMix random(5);
    for (int i = 0; i < 400; ++i) {
        std::vector<std::uint8_t> input = {static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(random.below(256))};
        for (int piece = 0; piece < 12; ++piece) {
            input.push_back(0);  // no bytes of its own
            input.push_back(static_cast<std::uint8_t>(0x40 | (random.chance(50) ? 0x20 : 0) | random.below(32)));
        }
        ASSERT_EQ(target.run(input.data(), input.size()), "") << "input " << SeededFuzzer::hex(input);
    }
    EXPECT_EQ(target.outOfStep(), 0) << target.stats();
    for (int p = 0; p < kNetPhases; ++p) EXPECT_GE(target.reached(static_cast<NetPhase>(p)), 45) << target.stats();
}

// A target that breaks on one input, to see the seeded fuzzer stop there and keep it.
class BreaksOnSeven : public FuzzTarget {
public:
    const char* name() const override { return "sevens"; }
    std::string run(const std::uint8_t* data, std::size_t size) override {
        ++runs;
        return size > 0 && data[0] == 7 ? "a seven" : "";
    }
    std::vector<std::uint8_t> sample(SplitMix& random) override {
        return {static_cast<std::uint8_t>(random.below(50))};
    }
    std::string stats() const override { return std::to_string(runs) + " runs"; }
    long runs = 0;
};

TEST(NetFuzz, TheSeededFuzzerStopsAtTheFirstBrokenRuleAndKeepsItsInput) {
    BreaksOnSeven target;
    const SeededFuzzer::Result result = SeededFuzzer::run(target, 1, 10'000, 60.0);
    EXPECT_EQ(result.failure, "a seven");
    EXPECT_EQ(result.input, std::vector<std::uint8_t>{7});
    EXPECT_EQ(result.runs, target.runs);
    EXPECT_LT(result.runs, 10'000);
    EXPECT_EQ(SeededFuzzer::hex({0x07, 0xAB}), "07ab");
    const SeededFuzzer::Result again = SeededFuzzer::run(target, 1, 10'000, 60.0);
    EXPECT_EQ(again.runs, result.runs) << "the same seed, the same inputs";
}

// A target whose third input never ends, for the watcher of hangs.
class HangsOnTheThird : public FuzzTarget {
public:
    const char* name() const override { return "hangs"; }
    std::string run(const std::uint8_t*, std::size_t) override {
        if (++runs == 3)
            for (;;) std::this_thread::sleep_for(std::chrono::milliseconds(50));
        return "";
    }
    std::vector<std::uint8_t> sample(SplitMix&) override { return {static_cast<std::uint8_t>(0xA0 + runs)}; }
    std::string stats() const override { return ""; }
    int runs = 0;
};

TEST(NetFuzzDeathTest, AnInputThatHangsEndsTheRunAndIsNamed) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    HangsOnTheThird target;
    EXPECT_DEATH(SeededFuzzer::run(target, 1, 10, 60.0, 1), "hangs: an input has run for 1 s: it hangs\ninput a2");
}

}  // namespace
}  // namespace petal::fuzz
