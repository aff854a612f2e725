// Each fuzz target on the inputs kept for it, then on spoilings of them from a fixed seed: the
// checks that libFuzzer makes, on every run of the suite (and under the sanitizers in CI).
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "FuzzTarget.h"

namespace petal::fuzz {
namespace {

struct Run {
    const char* target;
    int spoilings;
    // The target's name in a test's name, where the run's bytes would be.
    friend void PrintTo(const Run& run, std::ostream* out) { *out << run.target; }
};

// One to four changes, as a disk, a copy or a hand makes them: a byte put in, changed or taken
// out with those after it, a piece repeated, the end cut off.
void spoil(std::string& bytes, std::mt19937_64& random) {
    for (auto n = 1 + random() % 4; n > 0; --n) {
        const std::size_t at = bytes.empty() ? 0 : random() % bytes.size();
        switch (random() % 5) {
            case 0: bytes.insert(at, 1, static_cast<char>(random())); break;
            case 1: if (!bytes.empty()) bytes[at] = static_cast<char>(random()); break;
            case 2: bytes.erase(at, 1 + random() % 8); break;
            case 3: bytes.insert(at, bytes.substr(at, 1 + random() % 32)); break;
            default: bytes.resize(at); break;
        }
    }
}

class Fuzz : public ::testing::TestWithParam<Run> {};

TEST_P(Fuzz, TheKeptInputsAndSpoilingsOfThemRunClean) {
    const auto target = makeFuzzTarget(GetParam().target);
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(PETAL_SOURCE_DIR) /
                                                                 "tests/fuzz-corpus" / GetParam().target))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    ASSERT_FALSE(files.empty());
    std::vector<std::string> kept;
    for (const auto& file : files) {
        std::ifstream in(file, std::ios::binary);
        kept.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        EXPECT_EQ(target->run(reinterpret_cast<const std::uint8_t*>(kept.back().data()), kept.back().size()), "")
            << file.filename();
    }
    std::mt19937_64 random(20261123);
    for (int i = 0; i < GetParam().spoilings; ++i) {
        std::string input = kept[random() % kept.size()];
        spoil(input, random);
        ASSERT_EQ(target->run(reinterpret_cast<const std::uint8_t*>(input.data()), input.size()), "")
            << "input " << ::testing::PrintToString(input);
    }
}

INSTANTIATE_TEST_SUITE_P(Targets, Fuzz, ::testing::Values(Run{"net", 2000}, Run{"settings", 2000}, Run{"halloffame", 400}),
                         [](const auto& info) { return std::string(info.param.target); });

}  // namespace
}  // namespace petal::fuzz
