#include "opponent/Sight.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "opponent/HandReading.h"
#include "shell/FrmMain.h"

namespace petal {

namespace {

constexpr std::int8_t kUnseen = Sight::kUnseen;

// How much less likely a card is made by each play of the other side that it disagrees with.
constexpr double kDoubt = 0.01;

void mix(std::uint64_t& hash, std::int64_t value) {
    std::uint64_t state = hash ^ static_cast<std::uint64_t>(value);
    hash = nextRandom(state);
}

}  // namespace

Sight sightOf(const FrmMain& f, int side) {
    const MainVars& m = f.m;
    const TableModel& c = f.ctl;
    Sight v;
    v.side = side;
    DealState& s = v.seen;
    std::array<bool, 48> seen{};
    const auto indexAt = [&m](const TagText& tag) { return static_cast<std::int8_t>(m.mCards.at(tag.value()).Index); };

    const auto& own = side == 0 ? c.imgPCard : c.imgCCard;
    const auto& other = side == 0 ? c.imgCCard : c.imgPCard;
    int ownCards = 0, otherCards = 0;
    for (int i = 0; i < 8; ++i) {
        // The computer's card stands face up, its Tag cleared, between its choice and its drop.
        const bool mine = own[i].hasPicture() && own[i].Tag.value() >= 0;
        s.hand[side][i] = mine ? indexAt(own[i].Tag) : -1;
        if (mine) seen[s.hand[side][i]] = true;
        ownCards += mine ? 1 : 0;
        s.hand[1 - side][i] = other[i].hasPicture() ? kUnseen : -1;
        otherCards += other[i].hasPicture() ? 1 : 0;
    }
    s.table.fill(-1);
    s.tableSlots = static_cast<std::int8_t>(c.imgTCard.size());
    for (std::size_t i = 0; i < c.imgTCard.size(); ++i) {
        if (!c.imgTCard[i].hasPicture()) continue;
        s.table.at(i) = indexAt(c.imgTCard[i].Tag);
        seen[s.table[i]] = true;
    }
    for (const ScorePanel& panel : c.panel)
        for (const auto& row : panel.piles)
            for (const Image& card : row)
                if (card.hasPicture()) seen.at(card.Picture) = true;
    if (c.imgFlipCard.hasPicture()) {
        v.turned = indexAt(c.imgFlipCard.Tag);
        seen[v.turned] = true;
    }

    s.flips = static_cast<std::int8_t>(m.mDeckPos - 23);
    s.deck.fill(kUnseen);
    s.turn = static_cast<std::int8_t>(side);
    s.plays[side] = static_cast<std::int8_t>(8 - ownCards - (v.turned >= 0 ? 1 : 0));
    s.plays[1 - side] = static_cast<std::int8_t>(8 - otherCards);
    for (int p = 0; p < 2; ++p) {
        const auto& rows = m.mPoints[p][1];
        s.points[p] = static_cast<std::int16_t>(rows[0] + rows[1] + rows[2]);
        for (int g = 0; g < 8; ++g) s.yakuCards[p][g] = static_cast<std::int8_t>(m.mYakuCards[p][g]);
    }
    // The claimant is found as the end of the deal finds it.
    for (int p = 0; p < 2 && s.markSide < 0; ++p) {
        if (!c.panel[p].imgGagi.Visible) continue;
        s.markSide = static_cast<std::int8_t>(p);
        s.markMonth = static_cast<std::int8_t>(m.mCards.at(c.panel[p].imgGagi.Tag.value()).month);
    }
    s.useYaku = f.g.gUseYaku;

    for (int i = 0; i < 48; ++i)
        if (!seen[i]) v.hidden[v.hiddenCount++] = static_cast<std::int8_t>(i);
    readHand(v, f.seenPlays.all(), kDoubt);
    if (f.g.gGameType == 1) {
        v.tournament = true;
        v.lead = f.g.gRoundScores[side].at(0) - f.g.gRoundScores[1 - side].at(0);
        v.dealsAfter = std::max(0, f.g.gRounds - m.mRoundNo - 1);
    }
    return v;
}

std::uint64_t Sight::fingerprint() const {
    std::uint64_t hash = 0x5EED;
    for (const auto& h : seen.hand)
        for (int card : h) mix(hash, card);
    for (int i = 0; i < seen.tableSlots; ++i) mix(hash, seen.table[i]);
    for (int i = 0; i < hiddenCount; ++i) mix(hash, hidden[i]);
    for (std::int64_t value : {std::int64_t{seen.tableSlots}, std::int64_t{seen.flips}, std::int64_t{seen.plays[0]},
                               std::int64_t{seen.plays[1]}, std::int64_t{seen.points[0]}, std::int64_t{seen.points[1]},
                               std::int64_t{seen.markSide}, std::int64_t{seen.markMonth}, std::int64_t{side},
                               std::int64_t{turned}, std::int64_t{tournament}, std::int64_t{lead},
                               std::int64_t{dealsAfter}, std::int64_t{seen.useYaku}})
        mix(hash, value);
    for (const auto& groups : seen.yakuCards)
        for (int count : groups) mix(hash, count);
    for (int i = 0; i < hiddenCount; ++i)
        for (double chance : odds[hidden[i]]) mix(hash, std::llround(chance * 1e9));
    return hash;
}

DealState Sight::sample(std::uint64_t& rng) const {
    DealState s = seen;
    std::array<std::int8_t, 48> pool = hidden;
    int drawn = 0;
    // A partial shuffle: each place takes a card drawn from those left.
    const auto draw = [&]() {
        const int pick = drawn + static_cast<int>(nextRandom(rng) % static_cast<std::uint64_t>(hiddenCount - drawn));
        std::swap(pool[drawn], pool[pick]);
        return pool[drawn++];
    };
    for (int slot = 0; slot < 8; ++slot) {
        auto& card = s.hand[1 - side][slot];
        if (card != kUnseen) continue;
        // A card drawn by its odds for this place; where no card left has any, any card.
        double sum = 0;
        for (int i = drawn; i < hiddenCount; ++i) sum += odds[pool[i]][slot];
        if (sum <= 0) {
            card = draw();
            continue;
        }
        double at = static_cast<double>(nextRandom(rng) >> 11) * 0x1.0p-53 * sum;
        int pick = drawn;
        while (pick + 1 < hiddenCount && (at -= odds[pool[pick]][slot]) >= 0) ++pick;
        std::swap(pool[drawn], pool[pick]);
        card = pool[drawn++];
    }
    for (int i = s.flips; i < DealState::kTurned; ++i) s.deck[i] = draw();
    return s;
}

bool Sight::complete() const {
    int places = DealState::kTurned - seen.flips;
    for (int card : seen.hand[1 - side]) places += card == kUnseen ? 1 : 0;
    return places <= hiddenCount;
}

}  // namespace petal
