#include "SeededFuzzer.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <mutex>
#include <thread>

namespace petal::fuzz {

SeededFuzzer::Result SeededFuzzer::run(FuzzTarget& target, std::uint64_t seed, long count, double secondsLimit,
                                       int hangSeconds) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    const auto elapsed = [&] { return std::chrono::duration<double>(Clock::now() - start).count(); };
    SplitMix random(seed);
    Result result;
    // An input that runs for hangSeconds of real time hangs: a watcher ends the process and
    // names the input, as libFuzzer's -timeout does.
    std::mutex mutex;
    std::vector<std::uint8_t> current;
    std::atomic<long> started{0};
    std::atomic<bool> finished{false};
    std::thread watcher([&] {
        long seen = -1;
        int still = 0;
        while (!finished) {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            const long now = started;
            still = now == seen ? still + 1 : 0;
            seen = now;
            if (still < hangSeconds * 10) continue;
            std::lock_guard<std::mutex> lock(mutex);
            std::fprintf(stderr, "%s: an input has run for %d s: it hangs\ninput %s\n", target.name(), hangSeconds,
                         hex(current).c_str());
            std::abort();
        }
    });
    while (result.runs < count && elapsed() < secondsLimit) {
        std::vector<std::uint8_t> input = target.sample(random);
        {
            std::lock_guard<std::mutex> lock(mutex);
            current = input;
        }
        ++started;
        ++result.runs;
        result.failure = target.run(input.data(), input.size());
        if (!result.failure.empty()) {
            result.input = std::move(input);
            break;
        }
    }
    finished = true;
    watcher.join();
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
