#include "engine/Dealer.h"


#include "cards/FrmCards.h"
#include "engine/SeedText.h"
#include "scoring/YakuImageLists.h"
#include "shell/FrmMain.h"
#include "platform/Host.h"
#include "platform/Words.h"

namespace petal {

void Dealer::imgDeck_Click() {
    if (f_.g.gPlayMode == 2) return;  // only the host deals
    if (f_.g.gGameInProgress == 0) {
        DealCards();
        return;
    }
    const std::string question = f_.g.gPlayMode == 1
                                     ? PETAL_TR("core", "Do you want to restart this session with your opponent?")
                                     : PETAL_TR("core", "Do you want to quit the game in progress?");
    if (f_.host.msgBox({question, PETAL_TR("core", "Game In Progress"), MsgIcon::Question, MsgButtons::YesNo}) != MsgResult::Yes)
        return;
    f_.g.gGameInProgress = 0;
    if (f_.g.gPlayMode > 0) f_.sendToPeer("QUIT");
    NewGame(true);
    if (f_.g.gPlayMode < 2) f_.m.mTurn = 0;
    f_.setMousePointer(FrmMain::kPointerDefault);
}

void Dealer::NewGame(bool ClearOnly) {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    if (f_.g.gGameInProgress == 0) f_.g.dimRoundScores(f_.g.gRounds);
    ++m.dealSerial;
    clearHandsAndTable();
    clearPiles();
    resetYakuRows(ClearOnly);
    m.mPoints = {};
    f_.tmrComputer.setEnabled(false);
    m.mPlayerFlipped = 0;
    m.mCompPhase = 0;
    c.imgFlipCard.clearCard();
    c.shpFlipCard.Visible = false;
    for (ScorePanel& p : c.panel) {
        p.imgGagi.Visible = false;
        p.imgGagi.Tag = -1;
        p.imgTurn.Visible = false;
    }
    for (Image& banner : c.imgWinLose) banner.Picture = NoPicture;
    if (ClearOnly) {
        f_.journal.abandoned();
        f_.g.gGameInProgress = 0;
        m.mPeerReady = m.mLocalReady = true;
        m.mAutoDeal = false;  // an abandoned tournament deals no next round
    }
    m.mPlayerPlays = m.mCompPlays = 0;
    m.mPeerScoreOpen = false;
    m.mYakuCount = {0, 0};
}

void Dealer::clearHandsAndTable() {
    TableModel& c = f_.ctl;
    for (int i = 0; i < 8; ++i) {
        c.imgPCard[i].clearCard();
        c.imgPCard[i].Visible = true;
        c.imgCCard[i].Picture = NoPicture;
        c.imgCCard[i].Visible = true;
        c.lblPYaku[i].Visible = false;
        c.lblCYaku[i].Visible = false;
    }
    c.shpPHilite.Visible = false;
    c.unloadExtraTableSlots();
    for (std::size_t i = 0; i < c.imgTCard.size(); ++i) {
        c.imgTCard[i].clearCard();
        c.imgTCard[i].Visible = true;
        c.shpTHilite[i].Visible = false;
    }
}

void Dealer::clearPiles() {
    for (ScorePanel& p : f_.ctl.panel) {
        for (auto& row : p.piles) {
            row.resize(1);
            row[0].Picture = NoPicture;
            row[0].ToolTipText = {};
        }
        for (int k = 0; k < 4; ++k) {
            p.lblPoints[k].Caption.clear();
            p.lblPointsTotal[k].Caption.clear();
        }
    }
}

void Dealer::resetYakuRows(bool ClearOnly) {
    TableModel& c = f_.ctl;
    for (int i = 0; i < 24; ++i) {
        Image& mine = c.imgPYaku[i];
        Image& theirs = c.imgCYaku[i];
        if (f_.g.gUseYaku) {
            const PictureId grey = ClearOnly ? NoPicture : greyThumbnail(i);
            theirs.Picture = mine.Picture = grey;
            theirs.Visible = mine.Visible = true;
            mine.Tag = 48 + i;
            mine.Enabled = true;
        } else {
            theirs.Picture = mine.Picture = NoPicture;
            theirs.Visible = mine.Visible = false;
            mine.Enabled = true;
            c.picYakuShow.Visible = false;
        }
    }
    if (f_.g.gUseYaku && c.picYakuShow.Visible) f_.yaku.reloadPanel();
}

PictureId Dealer::greyThumbnail(int slot) {
    if (!greyKnown_.at(slot)) {
        grey_[slot] = ilsYaku(yakuKey(f_.g.gYakuCodes[slot])).Picture;
        greyKnown_[slot] = true;
    }
    return grey_[slot];
}

void Dealer::ShuffleCards() {
    MainVars& m = f_.m;
    // mCards is refilled whole below, so its records are reused rather than made anew.
    m.mDeck = {};
    std::array<int, 48> counted{};
    if (f_.g.gPlayMode == 0) {
        m.mDealSeed = f_.host.timeText();
    } else {
        if (!f_.net.dealFromWire()) m.mDealSeed = f_.host.timeText();
        f_.rnd.reset();
    }
    f_.rnd.seed(seedValue(m.mDealSeed));
    for (int i = 0; i < 48;) {
        // The draw is at least 1, so truncation is the floor, without a call to floor().
        const int x = static_cast<int>(f_.rnd.next() * 48 + 1);
        if (counted[x - 1] >= 1) continue;
        m.mDeck[i] = x;
        m.mCards[i] = FrmCards::card(x);
        ++counted[x - 1];
        ++i;
    }
}

void Dealer::DealCards() {
    MainVars& m = f_.m;
    Globals& g = f_.g;
    f_.setMousePointer(FrmMain::kPointerHourglass);
    ++serial_;
    const bool newGame = g.gGameInProgress == 0;
    f_.net.dealStarted();
    NewGame(false);
    const std::uint64_t rndBefore = f_.rnd.state();
    ShuffleCards();
    if (g.gPlayMode > 0) {
        g.gLocalLeads = m.mTurn <= 0;
        if (!f_.net.dealFromWire() && (g.gPlayMode != 1 || g.gConnectState == 7)) {
            std::string& sent = g.gPlayMode == 1 ? m.mHostDealText : m.mClientDealText;
            sent = "DEAL," + m.mDealSeed + (m.mTurn == 0 ? ",1" : ",0");
            f_.sendToPeer(sent);
        }
    }
    layOutDeal();
    m.mDeckPos = 23;
    f_.setMousePointer(FrmMain::kPointerDefault);
    if (g.gGameType == 1) {
        if (g.gGameInProgress == 0) {
            m.mRoundNo = 0;
            g.gGameInProgress = 1;
        }
    } else {
        m.mRoundNo = 0;
        if (g.gPlayMode == 0) m.mTurn = 0;
        g.gGameInProgress = 1;
    }
    f_.tmrComputer.setInterval(500);
    f_.tmrFlipTimer.setInterval(500);
    showLeader();
    f_.seenPlays.clear();
    if (f_.events) f_.events->dealt();
    f_.journal.dealt(newGame, rndBefore);
}

void Dealer::layOutDeal() {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    const int h = f_.g.gPlayMode == 2 ? 8 : 0;
    const int o = f_.g.gPlayMode == 2 ? 0 : 8;
    for (int i = 0; i < 8; ++i) {
        c.imgPCard[i].Picture = m.mCards[h + i].Picture;
        c.imgPCard[i].Tag = h + i;
        c.imgPCard[i].ToolTipText = cardToolTip(m.mCards[h + i]);
        c.imgTCard[i].Picture = m.mCards[16 + i].Picture;
        c.imgTCard[i].Tag = 16 + i;
        c.imgTCard[i].ToolTipText = cardToolTip(m.mCards[16 + i]);
        c.imgCCard[i].Picture = c.imgDeck.Picture;
        c.imgCCard[i].Tag = o + i;
        c.imgCCard[i].Visible = true;
        m.mYakuCards[0][i] = m.mYakuCards[1][i] = 0;
        c.lblPYaku[i].Visible = c.lblCYaku[i].Visible = false;
    }
}

void Dealer::showLeader() {
    TableModel& c = f_.ctl;
    const int leader = f_.m.mTurn == 1 ? 1 : 0;
    f_.tmrComputer.setEnabled(leader == 1);
    if (!c.panel[leader].imgTurn.Visible) {
        c.panel[1 - leader].imgTurn.Visible = false;
        c.panel[leader].imgTurn.Visible = true;
    }
    if (f_.g.gPlayMode > 0) f_.menu.mnuVChat.Enabled = leader == 0;
}

std::string Dealer::deckToolTip() const {
    return f_.g.gGameInProgress == 0 && f_.g.gPlayMode != 2 ? PETAL_TR("core", "Click the deck to deal.") : "";
}

}  // namespace petal
