// The libFuzzer entry of one target, named at build time (PETAL_FUZZ_TARGET). A broken rule
// aborts, so that libFuzzer keeps the input as a crash.
#include <cstdio>
#include <cstdlib>

#include "FuzzTarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto target = petal::fuzz::makeFuzzTarget(PETAL_FUZZ_TARGET);
    const std::string broken = target->run(data, size);
    if (broken.empty()) return 0;
    std::fprintf(stderr, "petalgarden-fuzz-%s: %s\n", PETAL_FUZZ_TARGET, broken.c_str());
    std::abort();
}
