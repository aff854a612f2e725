#pragma once
// Compares the records of a host and a client: the same deals, each move of one side's local
// player as the other side's remote move, the cards in the same places with the sides swapped,
// and at the end of every deal the two scores swapped.
#include <string>

#include "RecordQueue.h"

namespace petal::sim {

class MirrorCheck {
public:
    // The client's records are mirrored (Tracer::mirrored): both read as the host sees the table.
    RecordQueue host, client;

    // Compares what both sides have recorded so far; the first difference in words, or "".
    std::string compare() { return host.empty() || client.empty() ? std::string() : compareRecorded(); }
    // A broken session leaves records that the other side never saw: they are dropped.
    void forgetUnmatched();
    int compared() const { return compared_; }

private:
    std::string compareRecorded();

    int compared_ = 0;
};

}  // namespace petal::sim
