#include "shell/ReplayHost.h"

#include <algorithm>
#include <stdexcept>

#include "platform/Socket.h"
#include "platform/Timer.h"

namespace petal {

void ReplayHost::beginReplay(std::function<std::string()> seed) {
    replaying_ = true;
    seed_ = std::move(seed);
    now_ = 0;
    steps_ = 0;
    due_.clear();
    touched_.clear();
}

void ReplayHost::endReplay() {
    if (!replaying_) return;
    replaying_ = false;
    seed_ = nullptr;
    due_.clear();
    for (Timer* timer : touched_) real_.timerChanged(*timer);
    touched_.clear();
}

void ReplayHost::timerChanged(Timer& timer) {
    if (!replaying_) {
        real_.timerChanged(timer);
        return;
    }
    if (std::find(touched_.begin(), touched_.end(), &timer) == touched_.end()) touched_.push_back(&timer);
    std::erase_if(due_, [&timer](const Due& d) { return d.timer == &timer; });
    if (timer.Enabled() && timer.Interval() > 0) due_.push_back({&timer, now_ + timer.Interval(), seq_++});
}

void ReplayHost::timerRemoved(Timer& timer) {
    std::erase_if(due_, [&timer](const Due& d) { return d.timer == &timer; });
    std::erase(touched_, &timer);
    real_.timerRemoved(timer);
}

bool ReplayHost::step() {
    auto next = due_.end();
    for (auto it = due_.begin(); it != due_.end(); ++it)
        if (!it->timer->ticking() && (next == due_.end() || it->at < next->at || (it->at == next->at && it->seq < next->seq)))
            next = it;
    if (next == due_.end()) return false;
    // A save made to look like a game may keep timers firing for ever; a real game takes a few
    // thousand steps at most.
    if (++steps_ > kMostSteps) throw std::runtime_error("its moves never come to an end");
    Timer& timer = *next->timer;
    now_ = std::max(now_, next->at);
    // A periodic timer comes due again an interval later, unless its own tick re-arms or stops it.
    next->at = now_ + timer.Interval();
    next->seq = seq_++;
    timer.fire();
    // The replay caught up inside this tick: the program's host heard of the timer while it was
    // still ticking, and hears of it again now that it is not.
    if (!replaying_) real_.timerChanged(timer);
    return true;
}

// Nothing but the game's timers runs during a replay, and they run only when stepped.
void ReplayHost::doEvents() {
    if (!replaying_) real_.doEvents();
}

void ReplayHost::waitUntil(const std::function<bool()>& done) {
    while (replaying_ && !done())
        if (!step()) throw std::runtime_error("the game waits for something that never comes");
    // The replay caught up inside the wait: the rest of it runs on the program's host.
    if (!replaying_ && !done()) real_.waitUntil(done);
}

// The saved game went on past this form, so its answer is already in the game.
void ReplayHost::showModal(Form& form) {
    if (!replaying_) real_.showModal(form);
}

void ReplayHost::refresh() {
    if (!replaying_) real_.refresh();
}

std::unique_ptr<Socket> ReplayHost::createSocket() { return real_.createSocket(); }

std::string ReplayHost::timeText() { return replaying_ && seed_ ? seed_() : real_.timeText(); }

}  // namespace petal
