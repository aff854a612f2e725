// The settings file under the seeded fuzzer and its kept inputs, and the harness: its idea of
// the file as the program writes it, and its eye for what a player would never see.
#include <gtest/gtest.h>

#include <stdexcept>

#include "FileRig.h"
#include "FuzzRuns.h"
#include "SettingsSampler.h"
#include "SettingsTarget.h"
#include "records/Gardenia.h"

namespace petal::fuzz {
namespace {

constexpr long kSeededRuns = 20'000;

TEST(SettingsFuzz, ASeededRunOfTwentyThousandFilesBreaksNoRule) {
    SettingsTarget target(fuzzScratch());
    expectSeededRunClean(target, kSeededRuns);
    // Each way through the program takes a good share of the files, or it is not fuzzed.
    EXPECT_GT(target.started(), kSeededRuns / 2);
    EXPECT_GT(target.refused(), kSeededRuns / 20);
    EXPECT_GT(target.replaced(), kSeededRuns / 20);
    EXPECT_GT(target.saved(), kSeededRuns / 10);
}

TEST(SettingsFuzz, TheKeptInputsRunClean) {
    EXPECT_GE(expectKeptInputsClean<SettingsTarget>("settings"), 10);
}

// The target takes a file of these bytes for one that the program wrote, and holds the program
// to reading it back exactly.
TEST(SettingsFuzz, TheHarnessKnowsTheFileAsTheProgramWritesIt) {
    FileRig rig(fuzzScratch());
    ASSERT_TRUE(rig.start());
    std::string bytes;
    ASSERT_TRUE(rig.read(Gardenia::kFileName, bytes));
    EXPECT_EQ(bytes, SettingsSampler::written(0, 10, -1, 0));
    ASSERT_TRUE(rig.act([&] { rig.f().settings.WriteSettings(1, -32768, 1, 2); }));
    ASSERT_TRUE(rig.read(Gardenia::kFileName, bytes));
    EXPECT_EQ(bytes, SettingsSampler::written(1, -32768, 1, 2));
}

TEST(SettingsFuzz, WhatAPlayerWouldNeverSeeIsTheRigsFailure) {
    {
        FileRig rig(fuzzScratch());
        ASSERT_TRUE(rig.start());
        EXPECT_FALSE(rig.act([] { throw std::out_of_range("gRoundScores(0, 21)"); }));
        EXPECT_NE(rig.failure().find("a box that a player would never see: Subscript out of range"), std::string::npos)
            << rig.failure();
    }
    {
        FileRig rig(fuzzScratch());
        ASSERT_TRUE(rig.start());
        EXPECT_FALSE(rig.act([] { throw 7; }));
        EXPECT_EQ(rig.failure(), "an exception out of the program");
        EXPECT_FALSE(rig.act([] {})) << "a failed rig runs nothing more";
    }
    {
        FileRig rig(fuzzScratch());
        ASSERT_TRUE(rig.start());
        rig.onForm = [](Form&) {};  // the Hall of Fame is left open
        EXPECT_FALSE(rig.act([&] { rig.f().mnuVHallofFame_Click(); }));
        EXPECT_NE(rig.failure().find("the form frmHOF stands"), std::string::npos) << rig.failure();
    }
}

}  // namespace
}  // namespace petal::fuzz
