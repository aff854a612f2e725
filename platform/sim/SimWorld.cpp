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

void SimWorld::resume(SimHost& host) {
    if (Fiber::current()) throw UnexpectedPrompt("a world is driven from the main stack, not from a program's");
    host.fiber_->resume();
    if (host.failure_) {
        std::exception_ptr failure = host.failure_;
        host.failure_ = nullptr;
        host.ending_ = true;  // its stack is in no state to go on
        unwindDue_ = true;
        std::rethrow_exception(failure);
    }
    if (unwindDue_) unwindEnded();
}

void SimWorld::endAll() {
    for (SimHost* host : hosts_) host->endProgram();
    unwindEnded();
}

void SimWorld::unwindEnded() {
    unwindDue_ = false;
    for (SimHost* host : hosts_) {
        for (int guard = 0; host->ending_ && host->waiting() && guard < 64; ++guard) {
            host->command_ = SimHost::Command::None;
            host->fiber_->resume();
        }
        if (host->ending_ && host->waiting()) unwindDue_ = true;  // tried again at the next resume
    }
}

bool SimWorld::stepBefore(std::int64_t end) {
    SimHost* best = nullptr;
    const SimHost::Next* bestNext = nullptr;
    for (SimHost* host : hosts_) {
        if (host->ending_) continue;
        const SimHost::Next* next = host->next();
        if (next && (!bestNext || next->key < bestNext->key)) {
            best = host;
            bestNext = next;
        }
    }
    if (!best || bestNext->key.at > end) return false;
    best->command_ = SimHost::Command::RunDue;
    resume(*best);
    return true;
}

bool SimWorld::runUntil(const std::function<bool()>& done, std::int64_t limitMs) {
    const std::int64_t end = now_ + limitMs;
    while (!done())
        if (!stepBefore(end)) return false;
    return true;
}

void SimWorld::advance(std::int64_t ms) {
    const std::int64_t end = now_ + ms;
    runUntil([] { return false; }, ms);
    now_ = std::max(now_, end);
}

void SimWorld::act(SimHost& host, std::function<void()> fn) {
    if (host.ending_) return;
    host.command_ = SimHost::Command::Act;
    host.action_ = std::move(fn);
    resume(host);
}

}  // namespace petal
