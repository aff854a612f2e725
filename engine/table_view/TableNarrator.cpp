#include "engine/table_view/TableNarrator.h"

#include "engine/table_view/TableSpeech.h"
#include "net/FrmPetalChat.h"
#include "platform/Words.h"
#include "shell/FrmMain.h"

namespace petal {

// A sentence of the player's (mine) or of the opposite side's (theirs): %1 and %2 are its
// cards, %3 the opposite side as an object and %4 as a subject.
std::string TableNarrator::sentence(int side, const char* mine, const char* theirs, const std::string& card,
                                    const std::string& taken) const {
    if (side == 0) return said(f_.host, mine, {card, taken});
    const std::string object = said(f_.host, f_.g.gPlayMode == 0 ? PETAL_TR("core", "the computer") : PETAL_TR("core", "the other player"));
    return said(f_.host, theirs, {card, taken, object, opponentName(f_)});
}

void TableNarrator::moved(int side, bool fromDeck, int pos, int took, int) {
    const std::string card = spokenCard(f_, f_.m.mCards.at(pos));
    const std::string taken = took >= 0 ? spokenCard(f_, f_.m.mCards.at(took)) : "";
    if (fromDeck && took >= 0)
        said_.push_back(sentence(side, PETAL_TR("core", "The deck turns %1 for you. You take %2."),
                                 PETAL_TR("core", "The deck turns %1 for %3. %4 takes %2."), card, taken));
    else if (fromDeck)
        said_.push_back(sentence(side, PETAL_TR("core", "The deck turns %1 for you. You lay it down."),
                                 PETAL_TR("core", "The deck turns %1 for %3. %4 lays it down."), card, taken));
    else if (took >= 0)
        said_.push_back(sentence(side, PETAL_TR("core", "You play %1 and take %2."), PETAL_TR("core", "%4 plays %1 and takes %2."),
                                 card, taken));
    else
        said_.push_back(sentence(side, PETAL_TR("core", "You lay down %1."), PETAL_TR("core", "%4 lays down %1."), card, taken));
    lookForYaku();
}

void TableNarrator::claimed(int side, int pos, int) {
    said_.push_back(sentence(side, PETAL_TR("core", "You claim %1."), PETAL_TR("core", "%4 claims %1."),
                             spokenCard(f_, f_.m.mCards.at(pos)), {}));
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
                said_.push_back(sentence(side, PETAL_TR("core", "You make %1."), PETAL_TR("core", "%4 makes %1."), spokenYaku(f_, k), {}));
            yaku_[side][k] = held;
        }
}

void TableNarrator::lookForResult() {
    const Image& banner = f_.ctl.imgWinLose[0];
    const bool shown = banner.Visible && banner.hasPicture();
    if (shown && !result_) {
        for (const SpokenThing& t : spokenTable(f_))
            if (t.kind == SpokenThing::Kind::Banner && t.index == 0)
                said_.push_back(said(f_.host, PETAL_TR("core", "%1, %2 to %3."),
                                     {t.name, f_.ctl.panel[0].lblPointsTotal[3].Caption, f_.ctl.panel[1].lblPointsTotal[3].Caption}));
    }
    result_ = shown;
}

void TableNarrator::lookForChat() {
    const FrmPetalChat* form = f_.chat.form();
    if (form != chatForm_) chatLines_ = 0;
    chatForm_ = form;
    if (!form) return;
    const std::vector<std::string>& lines = form->lstChat.List;
    for (std::size_t i = chatLines_; i < lines.size(); ++i) said_.push_back(said(f_.host, PETAL_TR("core", "Chat: %1"), {lines[i]}));
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
        said_.push_back(now == Turn::Local ? said(f_.host, PETAL_TR("core", "Your turn."))
                                           : said(f_.host, PETAL_TR("core", "%1's turn."), {opponentName(f_)}));
    const bool placing = now == Turn::Local && f_.ctl.shpFlipCard.Visible;
    if (placing && !placing_)
        said_.push_back(said(f_.host, PETAL_TR("core", "The deck turns %1 for you. Choose a card for it to take."),
                             {spokenCard(f_, f_.m.mCards.at(f_.ctl.imgFlipCard.Tag.value()))}));
    placing_ = placing;
    if (now != Turn::None || f_.g.gGameInProgress != 1) turn_ = now;
    std::vector<std::string> out;
    out.swap(said_);
    return out;
}

}  // namespace petal
