#include "Tracer.h"

#include <cstdio>
#include <ostream>

#include "cards/Val.h"
#include "shell/FrmMain.h"

namespace petal::sim {

std::string jsonString(const std::string& text) {
    std::string out = "\"";
    for (unsigned char ch : text) {
        if (ch == '"' || ch == '\\') {
            out += '\\';
            out += static_cast<char>(ch);
        } else if (ch < 0x20) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\u%04x", ch);
            out += escaped;
        } else {
            out += static_cast<char>(ch);
        }
    }
    return out + "\"";
}

void Tracer::dealt() {
    ++events;
    positionOf_.fill(-1);
    for (int p = 0; p < 48; ++p) positionOf_.at(f_.m.mCards[p].Picture) = p;
    if (log) {
        Record& r = log->push();
        r.kind = Record::Kind::Deal;
        r.seed = f_.m.mDealSeed;
        r.lead = f_.m.mTurn;
        r.yaku = f_.g.gUseYaku ? 1 : 0;
        r.cards.reserve(f_.m.mCards.size());
        for (const CardRecord& card : f_.m.mCards) r.cards.push_back(card.Index);
    }
    if (!out_) return;
    std::string line = "{\"ev\":\"deal\",\"seed\":" + jsonString(f_.m.mDealSeed) + ",\"lead\":" + std::to_string(f_.m.mTurn) +
                       ",\"yaku\":" + (f_.g.gUseYaku ? "1" : "0") + ",\"cards\":[";
    for (int p = 0; p < 48; ++p) line += (p ? "," : "") + std::to_string(f_.m.mCards[p].Index);
    *out_ << line << "]}\n";
}

void Tracer::moved(int side, bool fromDeck, int pos, int took, int slot) {
    ++events;
    if (log) {
        Record& r = log->push();
        r.kind = Record::Kind::Move;
        r.side = side;
        r.fromDeck = fromDeck;
        r.pos = pos;
        r.took = took;
        r.slot = slot;
        snapshot(r);
    }
    if (!out_) return;
    *out_ << "{\"ev\":\"move\",\"side\":" << side << ",\"from\":\"" << (fromDeck ? "flip" : "hand") << "\",\"pos\":" << pos
          << ",\"took\":" << took << ",\"slot\":" << slot << "}\n";
}

void Tracer::claimed(int side, int pos, int slot) {
    ++events;
    if (log) {
        Record& r = log->push();
        r.kind = Record::Kind::Claim;
        r.side = side;
        r.pos = pos;
        r.slot = slot;
    }
    if (out_) *out_ << "{\"ev\":\"claim\",\"side\":" << side << ",\"pos\":" << pos << ",\"slot\":" << slot << "}\n";
}

void Tracer::dealEnded() {
    ++events;
    ++ended;
    const int p = static_cast<int>(Val(f_.ctl.panel[0].lblPointsTotal[3].Caption));
    const int c = static_cast<int>(Val(f_.ctl.panel[1].lblPointsTotal[3].Caption));
    (p > c ? won : p < c ? lost : tied) += 1;
    difference += p - c;
    if (log) {
        Record& r = log->push();
        r.kind = Record::Kind::End;
        r.p = p;
        r.c = c;
        r.pyaku = complete(0);
        r.cyaku = complete(1);
    }
    if (out_)
        *out_ << "{\"ev\":\"end\",\"p\":" << p << ",\"c\":" << c << ",\"pyaku\":" << complete(0)
              << ",\"cyaku\":" << complete(1) << "}\n";
}

std::string Tracer::summary(double seconds) const {
    // The mean difference is a whole number, as the trace's numbers are; rounded half away from 0.
    const long long margin = ended ? (difference >= 0 ? (2 * difference + ended) / (2 * ended)
                                                      : -((-2 * difference + ended) / (2 * ended)))
                                   : 0;
    char line[256];
    std::snprintf(line, sizeof line,
                  "{\"ev\":\"summary\",\"deals\":%d,\"seconds\":%.6f,\"deals_per_s\":%.1f,\"won\":%d,\"lost\":%d,"
                  "\"tied\":%d,\"margin\":%lld}\n",
                  ended, seconds, seconds > 0 ? ended / seconds : 0.0, won, lost, tied, margin);
    return line;
}

int Tracer::complete(int side) const {
    int n = 0;
    for (int g = 0; g < 8; ++g) n += f_.m.mYakuCards[side][g] == 3 ? 1 : 0;
    return n;
}

// Where every card lies when a move comes to rest: the table by its Tags, the piles by their
// pictures, which name the cards.
void Tracer::snapshot(Record& r) const {
    r.where.fill(-1);
    const auto& c = f_.ctl;
    for (std::size_t slot = 0; slot < c.imgTCard.size(); ++slot)
        if (c.imgTCard[slot].hasPicture())
            r.where.at(c.imgTCard[slot].Tag.value()) = static_cast<std::int16_t>(100 + slot);
    for (int side = 0; side < 2; ++side) {
        const int seen = mirrored ? 1 - side : side;
        for (int row = 0; row < 4; ++row)
            for (const Image& card : c.panel[side].piles[row])
                if (card.hasPicture()) r.where.at(positionOf_.at(card.Picture)) = static_cast<std::int16_t>(200 + 10 * seen + row);
    }
    const auto& yakuCards = f_.m.mYakuCards;
    const auto& points = f_.m.mPoints;
    r.yakuCards = mirrored ? decltype(r.yakuCards){yakuCards[1], yakuCards[0]} : yakuCards;
    r.points = mirrored ? decltype(r.points){points[1], points[0]} : points;
}

}  // namespace petal::sim
