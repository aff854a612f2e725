#include "shell/GameJournal.h"

#include <cstdio>

#include "records/AtomicFile.h"
#include "shell/FrmMain.h"
#include "platform/Host.h"
#include "platform/Words.h"

namespace petal {

namespace {

// FNV-1a over whole numbers: the table's fingerprint.
struct Fingerprint {
    std::uint32_t h = 2166136261u;
    void add(long value) {
        for (int i = 0; i < 4; ++i) h = (h ^ static_cast<unsigned char>(value >> (8 * i))) * 16777619u;
    }
    void add(const std::string& text) {
        for (const unsigned char c : text) h = (h ^ c) * 16777619u;
        add(static_cast<long>(text.size()));
    }
};

std::string hex64(std::uint64_t value) {
    char buf[17];
    std::snprintf(buf, sizeof buf, "%016llx", static_cast<unsigned long long>(value));
    return buf;
}

}  // namespace

std::filesystem::path GameJournal::path() const { return f_.host.programFolder() / SavedGame::kFileName; }

void GameJournal::dealt(bool newGame, std::uint64_t rndBefore) {
    if (!keeping_) return;
    if (newGame) beginGame(rndBefore);
    if (saving_) record('D', -1, -1, f_.m.mDealSeed);
}

// Only the two kinds of game the menus offer are saved; a network game's other side has moved
// on by the next start, so it is only counted.
void GameJournal::beginGame(std::uint64_t rndBefore) {
    const Globals& g = f_.g;
    counting_ = true;
    yaku_ = {};
    pendingSlot_ = -1;
    if (replaying()) return;  // the save's own header stands
    saving_ = g.gPlayMode == 0 && (g.gGameType == 0 || g.gGameType == 1);
    game_ = {};
    game_.options = {g.gGameType, g.gRounds, g.gUseYaku, f_.options.text("computer", "standard")};
    game_.firstTurn = f_.m.mTurn == 1 ? 1 : 0;
    game_.rndState = rndBefore;
    game_.id = f_.host.dateText() + " " + f_.m.mDealSeed + " " + hex64(rndBefore) + (saving_ ? "" : " net");
}

void GameJournal::flipRests() {
    if (!saving_ || pendingSlot_ < 0) return;
    const int slot = pendingSlot_;
    pendingSlot_ = -1;
    record('P', slot, pendingTarget_);
}

void GameJournal::flipPlaced(int target) {
    if (saving_) record('F', -1, target);
}

void GameJournal::computerTurnEnded() {
    if (saving_) record('C');
}

bool GameJournal::finalRound() const { return f_.g.gGameType == 0 || f_.m.mRoundNo + 1 >= f_.g.gRounds; }

void GameJournal::roundOver() {
    if (!keeping_ || !counting_) return;
    for (int k = 0; k < 8; ++k) yaku_[k] += f_.m.mYakuCards[0][k] == 3 ? 1 : 0;
    if (!finalRound()) return;
    counting_ = false;
    GameResult result;
    result.id = game_.id;
    result.date = f_.host.dateText();
    result.kind = f_.g.gGameType == 0 ? 0 : 1;
    result.opponent = f_.g.gPlayMode == 0 ? game_.options.computer : GameResult::kPeople;
    result.rounds = result.kind == 0 ? 1 : f_.g.gRounds;
    for (int side = 0; side < 2; ++side) {
        const int total = f_.matchEnd.scoreOf(side) + (result.kind == 0 ? 0 : f_.g.gRoundScores[side].at(0));
        (side == 0 ? result.score : result.against) = total;
    }
    result.yaku = yaku_;
    f_.stats.record(result);
}

void GameJournal::offersDone() {
    if (!saving_) return;
    record('E');
    // The round just ended was the last: the game is over and nothing is left to resume.
    if (f_.g.gGameType == 0 || f_.m.mRoundNo >= f_.g.gRounds) finish();
}

void GameJournal::abandoned() {
    counting_ = false;
    if (saving_ && !replaying()) finish();
}

void GameJournal::drop() {
    std::error_code ec;
    std::filesystem::remove(path(), ec);
}

void GameJournal::finish() {
    if (!saving_) return;
    saving_ = false;
    std::error_code ec;
    std::filesystem::remove(path(), ec);
}

void GameJournal::beginReplay(const SavedGame& saved, std::function<void()> caughtUp) {
    game_ = saved;
    game_.entries.clear();
    expected_ = saved;
    caughtUp_ = std::move(caughtUp);
    saving_ = true;
}

void GameJournal::cancelReplay() {
    expected_.reset();
    caughtUp_ = nullptr;
    saving_ = counting_ = false;
}

std::string GameJournal::replaySeed() const {
    const std::size_t next = recorded();
    if (!expected_ || next >= expected_->entries.size() || expected_->entries[next].kind != 'D')
        throw ReplayMismatch("a deal came at move " + std::to_string(next + 1) + ", where the saved game has none");
    return expected_->entries[next].seed;
}

void GameJournal::record(char kind, int slot, int target, std::string seed) {
    SavedGame::Entry entry{kind, slot, target, std::move(seed), fingerprint()};
    if (expected_) {
        const std::size_t at = recorded();
        if (at >= expected_->entries.size() || !(expected_->entries[at] == entry))
            throw ReplayMismatch("this version of Petalgarden plays its move " + std::to_string(at + 1) + " otherwise");
        game_.entries.push_back(std::move(entry));
        if (recorded() < expected_->entries.size()) return;
        expected_.reset();
        if (auto caughtUp = std::move(caughtUp_)) caughtUp();
        if (onRecorded) onRecorded(true);
        return;
    }
    game_.entries.push_back(std::move(entry));
    save();
    if (onRecorded) onRecorded(false);
}

void GameJournal::save() {
    const Globals& g = f_.g;
    // Between rounds the totals are the finished rounds'; within one the round so far counts.
    const bool between = game_.entries.back().kind == 'E';
    game_.round = g.gGameType == 0 ? 1 : f_.m.mRoundNo + (between ? 0 : 1);
    for (int side = 0; side < 2; ++side) {
        const int sum = (g.gGameType == 0 ? 0 : g.gRoundScores[side].at(0)) + (between ? 0 : f_.matchEnd.scoreOf(side));
        (side == 0 ? game_.playerTotal : game_.opponentTotal) = sum;
    }
    const FileFailure failure = writeFileAtomically(path(), game_.text());
    if (!failure || toldUnsaved_) return;
    toldUnsaved_ = true;
    f_.host.msgBox({said(f_.host,
                         PETAL_TR("core", "The game in progress cannot be saved: the file \"%1\" cannot be %2: %3.\n\n"
                                          "The game goes on, but it cannot be resumed if the program ends."),
                         {path().string(), failure.operation, failure.reason}),
                    "Petalgarden", MsgIcon::Exclamation, MsgButtons::OK});
}

std::uint32_t GameJournal::fingerprint() const {
    const MainVars& m = f_.m;
    const TableModel& c = f_.ctl;
    Fingerprint fp;
    for (const int card : m.mDeck) fp.add(card);
    for (int i = 0; i < 8; ++i) {
        fp.add(c.imgPCard[i].Tag.value() * 2 + (c.imgPCard[i].hasPicture() ? 1 : 0));
        fp.add(c.imgCCard[i].Tag.value() * 2 + (c.imgCCard[i].hasPicture() ? 1 : 0));
    }
    fp.add(static_cast<long>(c.imgTCard.size()));
    for (const Image& card : c.imgTCard) fp.add(card.Tag.value());
    fp.add(c.imgFlipCard.Tag.value());
    for (const long v : {m.mDeckPos, m.mTurn, m.mPlayerPlays, m.mCompPlays, m.mRoundNo, m.mTournamentYakus}) fp.add(v);
    for (const auto& side : m.mPoints)
        for (const auto& kind : side)
            for (const int v : kind) fp.add(v);
    for (const auto& side : m.mYakuCards)
        for (const int v : side) fp.add(v);
    for (const auto& side : f_.g.gRoundScores)
        for (const int v : side) fp.add(v);
    for (const ScorePanel& panel : c.panel) fp.add(panel.lblPointsTotal[3].Caption);
    return fp.h;
}

}  // namespace petal
