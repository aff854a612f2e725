// petalgarden-fuzz-seeded TARGET [--seed S] [--runs N] [--seconds T] [--save FILE]
// petalgarden-fuzz-seeded TARGET --replay FILE...
// The seeded fuzzer outside the test suite, for long runs and for replaying kept inputs.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "FuzzTargets.h"
#include "SeededFuzzer.h"

using namespace petal::fuzz;

namespace {

int usage() {
    std::fprintf(stderr,
                 "usage: petalgarden-fuzz-seeded TARGET [--seed S] [--runs N] [--seconds T] [--save FILE]\n"
                 "       petalgarden-fuzz-seeded TARGET --replay FILE...\n");
    return 2;
}

int replay(FuzzTarget& target, int argc, char** argv, int first) {
    int failed = 0;
    for (int i = first; i < argc; ++i) {
        const std::string broken = SeededFuzzer::replay(target, argv[i]);
        if (broken.empty()) continue;
        std::fprintf(stderr, "%s: %s\n", argv[i], broken.c_str());
        ++failed;
    }
    std::printf("%d of %d inputs failed; %s\n", failed, argc - first, target.stats().c_str());
    return failed ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) return usage();
    auto target = makeFuzzTarget(argv[1], fuzzScratch());
    if (!target) return usage();
    std::uint64_t seed = 1;
    long runs = 100'000;
    double seconds = 3600;
    std::string save = "fuzz-failure.bin";
    for (int i = 2; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--replay") return replay(*target, argc, argv, i + 1);
        if (i + 1 >= argc) return usage();
        if (arg == "--seed")
            seed = std::strtoull(argv[++i], nullptr, 10);
        else if (arg == "--runs")
            runs = std::strtol(argv[++i], nullptr, 10);
        else if (arg == "--seconds")
            seconds = std::strtod(argv[++i], nullptr);
        else if (arg == "--save")
            save = argv[++i];
        else
            return usage();
    }
    const SeededFuzzer::Result result = SeededFuzzer::run(*target, seed, runs, seconds);
    std::printf("%s: %ld inputs in %.1f s (%.0f/s) from seed %llu\n%s\n", target->name(), result.runs, result.seconds,
                result.runs / (result.seconds > 0 ? result.seconds : 1), static_cast<unsigned long long>(seed),
                target->stats().c_str());
    if (result.failure.empty()) return 0;
    std::ofstream(save, std::ios::binary)
        .write(reinterpret_cast<const char*>(result.input.data()), static_cast<std::streamsize>(result.input.size()));
    std::fprintf(stderr, "failure after %ld inputs: %s\ninput %s, saved to %s\n", result.runs, result.failure.c_str(),
                 SeededFuzzer::hex(result.input).c_str(), save.c_str());
    return 1;
}
