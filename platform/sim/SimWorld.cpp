#include "platform/sim/SimWorld.h"

#include <algorithm>

#include "platform/sim/Fiber.h"
#include "platform/sim/SimHost.h"
#include "platform/sim/SimNetwork.h"

namespace petal {

SimWorld::SimWorld() : network_(std::make_unique<SimNetwork>(*this)) {}

SimWorld::~SimWorld() {
    for (SimHost* host : hosts_) host->world_ = nullptr;
}

void SimWorld::join(SimHost& host) {
    if (host.world_) return;
    now_ = std::max(now_, host.now());
    host.world_ = this;
    host.clock_ = &now_;
    host.seq_ = &seq_;
    SimHost* h = &host;
    host.fiber_ = std::make_unique<Fiber>([h] {
        for (;;) {
            h->runCommand();
            h->fiber_->yield();
        }
    });
    hosts_.push_back(&host);
}

void SimWorld::leave(SimHost& host) {
    hosts_.erase(std::remove(hosts_.begin(), hosts_.end(), &host), hosts_.end());
}

void SimWorld::resume(SimHost& host, std::function<void()> command) {
    if (Fiber::current()) throw UnexpectedPrompt("a world is driven from the main stack, not from a program's");
    host.command_ = std::move(command);
    host.fiber_->resume();
    if (host.failure_) {
        std::exception_ptr failure = host.failure_;
        host.failure_ = nullptr;
        host.ending_ = true;  // its stack is in no state to go on
        std::rethrow_exception(failure);
    }
    unwindEnded();
}

void SimWorld::endAll() {
    for (SimHost* host : hosts_) host->endProgram();
    unwindEnded();
}

void SimWorld::unwindEnded() {
    for (SimHost* host : hosts_)
        for (int guard = 0; host->ending_ && host->waiting() && guard < 64; ++guard) {
            host->command_ = nullptr;
            host->fiber_->resume();
        }
}

bool SimWorld::step() {
    SimHost* best = nullptr;
    SimHost::Key bestKey{};
    for (SimHost* host : hosts_) {
        if (host->ending_) continue;
        const auto key = host->nextKey();
        if (key && (!best || *key < bestKey)) {
            best = host;
            bestKey = *key;
        }
    }
    if (!best) return false;
    resume(*best, [best] { best->runNextDue(); });
    return true;
}

bool SimWorld::runUntil(const std::function<bool()>& done, std::int64_t limitMs) {
    const std::int64_t end = now_ + limitMs;
    while (!done()) {
        SimHost::Key bestKey{end + 1, 0};
        for (SimHost* host : hosts_) {
            if (host->ending_) continue;
            if (const auto key = host->nextKey(); key && *key < bestKey) bestKey = *key;
        }
        if (bestKey.at > end || !step()) return false;
    }
    return true;
}

void SimWorld::advance(std::int64_t ms) {
    const std::int64_t end = now_ + ms;
    runUntil([] { return false; }, ms);
    now_ = std::max(now_, end);
}

void SimWorld::act(SimHost& host, std::function<void()> fn) {
    if (host.ending_) return;
    resume(host, std::move(fn));
}

}  // namespace petal
