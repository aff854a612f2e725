#include "engine/table_view/TableNarrator.h"

#include "engine/table_view/TableSpeech.h"
#include "net/FrmPetalChat.h"
#include "shell/FrmMain.h"

namespace petal {

std::string TableNarrator::who(int side, bool subject) const {
    if (side == 0) return subject ? "You" : "you";
    std::string name = opponentName(f_);
    if (!subject) name[0] = 't';
    return name;
}

namespace {
std::string verb(int side, const char* word) { return side == 0 ? word : std::string(word) + "s"; }
}  // namespace

void TableNarrator::moved(int side, bool fromDeck, int pos, int took, int) {
    const std::string card = spokenCard(f_.m.mCards.at(pos));
    const std::string taken = took >= 0 ? spokenCard(f_.m.mCards.at(took)) : "";
    if (fromDeck)
        said_.push_back("The deck turns " + card + " for " + who(side, false) + ". " + who(side, true) + " " +
                        (took >= 0 ? verb(side, "take") + " " + taken : verb(side, "lay") + " it down") + ".");
    else
        said_.push_back(who(side, true) + " " +
                        (took >= 0 ? verb(side, "play") + " " + card + " and " + verb(side, "take") + " " + taken
                                   : verb(side, "lay") + " down " + card) + ".");
    lookForYaku();
}

void TableNarrator::claimed(int side, int pos, int) {
    said_.push_back(who(side, true) + " " + verb(side, "claim") + " " + spokenCard(f_.m.mCards.at(pos)) + ".");
    lookForYaku();
}

// The turn is the player's once a move of theirs waits: no timer of the computer's runs and the
// hourglass is gone.
TableNarrator::Turn TableNarrator::turnNow() const {
    const MainVars& m = f_.m;
    if (f_.g.gGameInProgress != 1 || m.mDeckPos == 0) return Turn::None;
    if (m.mTurn != 0) return Turn::Opposite;
    const bool waits = !f_.tmrComputer.Enabled() && f_.MousePointer() != FrmMain::kPointerHourglass &&
                       (f_.ctl.shpFlipCard.Visible || m.mPlayerFlipped == 0);
    return waits ? Turn::Local : Turn::None;
}

// A yaku is told after the move that made it, which the moment its card came to rest follows.
void TableNarrator::lookForYaku() {
    for (int side = 0; side < 2; ++side)
        for (int k = 0; k < 8; ++k) {
            const int held = f_.m.mYakuCards[side][k];
            if (held == 3 && yaku_[side][k] != 3)
                said_.push_back(who(side, true) + " " + verb(side, "make") + " " + spokenYaku(f_, k) + ".");
            yaku_[side][k] = held;
        }
}

void TableNarrator::lookForResult() {
    const Image& banner = f_.ctl.imgWinLose[0];
    const bool shown = banner.Visible && banner.hasPicture();
    if (shown && !result_) {
        for (const SpokenThing& t : spokenTable(f_))
            if (t.kind == SpokenThing::Kind::Banner && t.index == 0) said_.push_back(t.name + ", " + f_.ctl.panel[0].lblPointsTotal[3].Caption +
                                                                                     " to " + f_.ctl.panel[1].lblPointsTotal[3].Caption + ".");
    }
    result_ = shown;
}

void TableNarrator::lookForChat() {
    const FrmPetalChat* form = f_.chat.form();
    if (form != chatForm_) chatLines_ = 0;
    chatForm_ = form;
    if (!form) return;
    const std::vector<std::string>& lines = form->lstChat.List;
    for (std::size_t i = chatLines_; i < lines.size(); ++i) said_.push_back("Chat: " + lines[i]);
    chatLines_ = static_cast<int>(lines.size());
}

std::vector<std::string> TableNarrator::take() {
    lookForResult();
    lookForChat();
    if (f_.m.dealSerial != deal_) {
        turn_ = Turn::None;
        yaku_ = f_.m.mYakuCards;
    }
    deal_ = f_.m.dealSerial;
    const Turn now = turnNow();
    if (now != turn_ && now != Turn::None)
        said_.push_back(now == Turn::Local ? "Your turn." : opponentName(f_) + "'s turn.");
    const bool placing = now == Turn::Local && f_.ctl.shpFlipCard.Visible;
    if (placing && !placing_)
        said_.push_back("The deck turns " + spokenCard(f_.m.mCards.at(f_.ctl.imgFlipCard.Tag.value())) + " for you. Choose a card for it to take.");
    placing_ = placing;
    if (now != Turn::None || f_.g.gGameInProgress != 1) turn_ = now;
    std::vector<std::string> out;
    out.swap(said_);
    return out;
}

}  // namespace petal
