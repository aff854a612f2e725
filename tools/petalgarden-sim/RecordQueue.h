#pragma once
// The records of one side that the mirror has yet to compare, oldest first. A run makes a
// record for every event and the mirror takes most within moments, so the storage is kept and
// reused rather than given a node per record.
#include <cstddef>
#include <vector>

#include "Record.h"

namespace petal::sim {

class RecordQueue {
public:
    bool empty() const { return head_ == items_.size(); }
    std::size_t size() const { return items_.size() - head_; }
    Record& front() { return items_[head_]; }

    // A record in its first state at the back, to be filled where it stands.
    Record& push() {
        // Records the other side has not matched for long are moved down rather than let the
        // taken ones pile up before them.
        if (head_ >= kCompactAfter && head_ * 2 >= items_.size()) {
            items_.erase(items_.begin(), items_.begin() + static_cast<std::ptrdiff_t>(head_));
            head_ = 0;
        }
        return items_.emplace_back();
    }
    void pop() {
        if (++head_ == items_.size()) clear();
    }
    void clear() {
        items_.clear();
        head_ = 0;
    }

private:
    static constexpr std::size_t kCompactAfter = 64;

    std::vector<Record> items_;
    std::size_t head_ = 0;
};

}  // namespace petal::sim
