#pragma once
// Several simulated programs on one virtual clock, joined by a simulated network. Each host
// runs its handlers on a stack of its own; the world, on the caller's stack, runs the next due
// event of whichever host has one, so that nested waits of two programs never hold each other
// up. Everything is deterministic: the same calls give the same run.
#include <climits>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace petal {

class SimHost;
class SimNetwork;

class SimWorld {
public:
    SimWorld();
    ~SimWorld();
    SimWorld(const SimWorld&) = delete;
    SimWorld& operator=(const SimWorld&) = delete;

    // The host's clock becomes the world's; the world must outlive it.
    void join(SimHost& host);

    std::int64_t now() const { return now_; }
    SimNetwork& network() { return *network_; }

    // Runs the next due event of any host. False when no host has one.
    bool step() { return stepBefore(INT64_MAX); }
    // Steps until done() holds; false if time passes limitMs or nothing is left to run.
    bool runUntil(const std::function<bool()>& done, std::int64_t limitMs);
    void advance(std::int64_t ms);
    // Runs fn now on the host's own stack, as input to that program would: inside a wait of
    // that program if one is open. A failure of a test script in any host is rethrown here.
    void act(SimHost& host, std::function<void()> fn);
    // Ends every program and lets their open waits return, so that what their stacks own is
    // freed before the programs go. Owners call it before destroying the programs.
    void endAll();

private:
    friend class SimHost;
    void leave(SimHost& host);
    // Runs the next due event of any host if it falls at or before `end`.
    bool stepBefore(std::int64_t end);
    void resume(SimHost& host);
    // A program that has ended leaves its open waits, so that its stack unwinds.
    void unwindEnded();

    std::int64_t now_ = 0;
    std::uint64_t seq_ = 0;
    bool unwindDue_ = false;  // a program has ended since the last unwinding
    std::vector<SimHost*> hosts_;
    std::unique_ptr<SimNetwork> network_;
};

}  // namespace petal
