#include "platform/Timer.h"

#include "platform/Host.h"

namespace petal {

Timer::Timer(Host& host, std::function<void()> onTick, int interval)
    : host_(host), onTick_(std::move(onTick)), interval_(interval) {}

Timer::~Timer() { host_.timerRemoved(*this); }

void Timer::setEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    host_.timerChanged(*this);
}

void Timer::setInterval(int ms) {
    if (ms == interval_) return;
    interval_ = ms;
    host_.timerChanged(*this);
}

void Timer::fire() {
    if (ticking_ || !enabled_ || host_.ending()) return;
    ticking_ = true;
    struct Reset {
        bool& flag;
        ~Reset() { flag = false; }
    } reset{ticking_};
    onTick_();
}

}  // namespace petal
