#include "SeededFuzzer.h"

#include <chrono>
#include <fstream>
#include <iterator>

namespace petal::fuzz {

SeededFuzzer::Result SeededFuzzer::run(FuzzTarget& target, std::uint64_t seed, long count, double secondsLimit) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    const auto elapsed = [&] { return std::chrono::duration<double>(Clock::now() - start).count(); };
    SplitMix random(seed);
    Result result;
    while (result.runs < count && elapsed() < secondsLimit) {
        std::vector<std::uint8_t> input = target.sample(random);
        ++result.runs;
        result.failure = target.run(input.data(), input.size());
        if (!result.failure.empty()) {
            result.input = std::move(input);
            break;
        }
    }
    result.seconds = elapsed();
    return result;
}

std::string SeededFuzzer::replay(FuzzTarget& target, const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return "cannot read " + file.string();
    const std::vector<std::uint8_t> input{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    return target.run(input.data(), input.size());
}

std::string SeededFuzzer::hex(const std::vector<std::uint8_t>& bytes) {
    static const char digits[] = "0123456789abcdef";
    std::string out;
    for (std::uint8_t b : bytes) {
        out += digits[b >> 4];
        out += digits[b & 15];
    }
    return out;
}

}  // namespace petal::fuzz
