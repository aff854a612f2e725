// The libFuzzer entry of one target, named at build time (PETAL_FUZZ_TARGET). A broken rule
// aborts, so that libFuzzer keeps the input as a crash.
//
// The target lives until the process ends and is never destroyed: its programs must not run
// while the statics they use are being destroyed. Its folders are made in one folder of this
// process's, removed at the very end.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "FuzzTargets.h"

namespace {

petal::fuzz::FuzzTarget* current = nullptr;
std::filesystem::path scratch;

void removeScratch() {
    std::error_code ec;
    std::filesystem::remove_all(scratch, ec);
}

void report() { std::fprintf(stderr, "petalgarden-fuzz-%s: %s\n", PETAL_FUZZ_TARGET, current->stats().c_str()); }

petal::fuzz::FuzzTarget& target() {
    if (current) return *current;
    std::string pattern = (petal::fuzz::fuzzScratch() / "petalgarden-fuzz-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) std::abort();
    scratch = pattern;
    std::atexit(removeScratch);
    current = petal::fuzz::makeFuzzTarget(PETAL_FUZZ_TARGET, scratch).release();
    if (!current) std::abort();
    std::atexit(report);  // runs before the folder goes
    return *current;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string broken = target().run(data, size);
    if (broken.empty()) return 0;
    std::fprintf(stderr, "petalgarden-fuzz-%s: %s\n", PETAL_FUZZ_TARGET, broken.c_str());
    std::abort();
}
