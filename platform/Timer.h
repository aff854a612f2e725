#pragma once
#include <functional>

namespace petal {

class Host;

// A timer control: Enabled and Interval as the game sets them, the tick as a callback.
// A tick never starts while the previous tick of the same timer is still running.
class Timer {
public:
    Timer(Host& host, std::function<void()> onTick, int interval = 0);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    bool Enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    int Interval() const { return interval_; }
    void setInterval(int ms);
    bool ticking() const { return ticking_; }

    // Called by the host when the interval has run out.
    void fire();

private:
    Host& host_;
    std::function<void()> onTick_;
    int interval_;
    bool enabled_ = false;
    bool ticking_ = false;
};

}  // namespace petal
