#include "net/RemoteReplay.h"

#include <vector>

#include "cards/Val.h"
#include "platform/FatalError.h"
#include "shell/FrmMain.h"

namespace petal {

namespace {

std::vector<std::string> splitFields(const std::string& text) {
    std::vector<std::string> fields;
    std::size_t start = 0;
    while (true) {
        const std::size_t at = text.find(',', start);
        fields.push_back(text.substr(start, at - start));
        if (at == std::string::npos) return fields;
        start = at + 1;
    }
}

// A field that must be a number as a whole; anything else means the peers have diverged.
int strictNumber(const std::vector<std::string>& fields, std::size_t index) {
    if (index >= fields.size()) throw FatalError("Petalgarden", "A message from the opponent lacks a field: the game cannot go on.");
    const std::string& text = fields[index];
    std::size_t at = text.find_first_not_of(' ');
    if (at != std::string::npos && (text[at] == '-' || text[at] == '+')) ++at;
    const bool digitsOnly = at != std::string::npos && at < text.size() &&
                            text.find_first_not_of("0123456789", at) == std::string::npos;
    if (!digitsOnly) throw FatalError("Petalgarden", "A message from the opponent is not a card move: \"" + text + "\".");
    return static_cast<int>(Val(text));
}

}  // namespace

bool RemoteReplay::MultiPlayerSelectCard() {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    std::string& buffer = f_.recvBuffer();
    if (buffer.empty()) return false;
    const std::vector<std::string> fields = splitFields(buffer);
    if (fields[0] != "CARD") return false;
    int s = Val(fields.size() > 1 ? fields[1] : "");
    if (f_.g.gPlayMode == 2) {
        m.mCompCard = s;
        m.mCompDeckPos = Val(c.imgCCard.at(s).Tag);
    } else {
        m.mCompCard = s;
        m.mCompDeckPos = s + 8;
        for (int j = 0; j < 8; ++j) {
            if (Val(c.imgCCard[j].Tag) == s) {
                s = m.mCompCard = j;
                break;
            }
        }
    }
    c.imgCCard.at(s).Picture = m.mCards.at(m.mCompDeckPos).Picture;
    f_.play.RelativeCheck(m.mCompDeckPos, true);
    c.imgCCard[s].Tag = "-1";
    m.mRemoteTableCard = Val(fields.size() > 2 ? fields[2] : "");
    buffer.clear();
    return true;
}

bool RemoteReplay::MultiPlayerDropCard(int phase) {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    if (phase == 3) {
        std::string& buffer = f_.recvBuffer();
        if (buffer.empty()) return false;
        const std::vector<std::string> fields = splitFields(buffer);
        buffer.clear();
        m.mRemoteTableCard = strictNumber(fields, 2);
    }
    if (m.mRemoteTableCard == -1) {
        f_.play.imgTable_Click();
        return true;
    }
    f_.piles.captureFromTable(1, m.mRemoteTableCard, m.mCompDeckPos, phase != 1);
    f_.piles.CalcPlayerPoints();
    f_.yaku.CountYakus();
    if (phase == 1) {
        c.imgCCard.at(m.mCompCard).clearCard();
    } else {
        c.imgFlipCard.clearCard();
        c.shpFlipCard.Visible = false;
    }
    for (Shape& frame : c.shpTHilite) frame.Visible = false;
    m.mRemoteTableCard = -1;
    return true;
}

}  // namespace petal
