#pragma once
// A timer whose first tick waits, nested, until a second timer fires, while its own interval
// runs out again and again: the ticks that ran and the deepest nesting of one inside another.
#include <algorithm>

#include "platform/Host.h"
#include "platform/Timer.h"

namespace petal {

class NestedTicks {
public:
    NestedTicks(Host& host, int interval, int releaseAfter)
        : release_(host, [this] { released = true; }, releaseAfter),
          busy_(host,
                [this, &host] {
                    ++ticks;
                    deepest = std::max(deepest, ++depth_);
                    if (ticks == 1) {
                        release_.setEnabled(true);
                        host.waitUntil([this] { return released; });
                    }
                    --depth_;
                },
                interval) {
        busy_.setEnabled(true);
    }

    int ticks = 0, deepest = 0;
    bool released = false;

private:
    int depth_ = 0;
    Timer release_, busy_;
};

}  // namespace petal
