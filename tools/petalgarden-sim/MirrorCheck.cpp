#include "MirrorCheck.h"

namespace petal::sim {

namespace {

std::string describe(const Record& r) {
    switch (r.kind) {
        case Record::Kind::Deal: return "deal seeded \"" + r.seed + "\"";
        case Record::Kind::Move:
            return std::string("move of side ") + std::to_string(r.side) + (r.fromDeck ? " from the deck" : " from the hand") +
                   ": position " + std::to_string(r.pos) + ", took " + std::to_string(r.took) + ", slot " +
                   std::to_string(r.slot);
        case Record::Kind::Claim: return "claim of side " + std::to_string(r.side) + " of position " + std::to_string(r.pos);
        case Record::Kind::End: return "end " + std::to_string(r.p) + " to " + std::to_string(r.c);
    }
    return {};
}

std::string difference(const Record& h, const Record& c) {
    if (h.kind != c.kind) return "different events";
    switch (h.kind) {
        case Record::Kind::Deal:
            if (h.seed != c.seed || h.cards != c.cards) return "different decks";
            if (h.lead + c.lead != 1) return "both or neither lead";
            if (h.yaku != c.yaku) return "different yaku options";
            return {};
        case Record::Kind::Move: {
            if (h.side != 1 - c.side || h.fromDeck != c.fromDeck || h.pos != c.pos || h.took != c.took || h.slot != c.slot)
                return "different moves";
            if (h.where != c.where)
                for (std::size_t p = 0; p < h.where.size(); ++p)
                    if (h.where[p] != c.where[p]) return "position " + std::to_string(p) + " lies elsewhere";
            if (h.yakuCards != c.yakuCards) return "different yaku rows";
            if (h.points != c.points) return "different piles";
            return {};
        }
        case Record::Kind::Claim:
            return h.side == 1 - c.side && h.pos == c.pos && h.slot == c.slot ? std::string() : "different claims";
        case Record::Kind::End:
            return h.p == c.c && h.c == c.p && h.pyaku == c.cyaku && h.cyaku == c.pyaku ? std::string()
                                                                                     : "scores not swapped";
    }
    return {};
}

}  // namespace

std::string MirrorCheck::compareRecorded() {
    while (!host.empty() && !client.empty()) {
        const std::string diff = difference(host.front(), client.front());
        if (!diff.empty())
            return "record " + std::to_string(compared_ + 1) + ": " + diff + " (host: " + describe(host.front()) +
                   "; client: " + describe(client.front()) + ")";
        host.pop();
        client.pop();
        ++compared_;
    }
    return {};
}

void MirrorCheck::forgetUnmatched() {
    host.clear();
    client.clear();
}

}  // namespace petal::sim
