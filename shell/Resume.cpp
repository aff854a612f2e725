#include "shell/Resume.h"

#include "platform/Host.h"
#include "platform/UnexpectedPrompt.h"
#include "records/AtomicFile.h"
#include "records/SetAside.h"
#include "shell/FrmMain.h"
#include "shell/ReplayHost.h"
#include "platform/Words.h"

namespace petal {

bool Resume::found() const {
    std::error_code ec;
    return std::filesystem::exists(f_.journal.path(), ec);
}

std::string Resume::question(const SavedGame& s) const {
    const std::string you = std::to_string(s.playerTotal), computer = std::to_string(s.opponentTotal);
    if (s.options.gameType == 0)
        return said(f_.host, PETAL_TR("core", "Resume your game? You %1, the computer %2."), {you, computer});
    return said(f_.host, PETAL_TR("core", "Resume your tournament? Round %1 of %2, you %3, the computer %4."),
                {std::to_string(s.round), std::to_string(s.options.rounds), you, computer});
}

void Resume::offer() {
    const std::filesystem::path file = f_.journal.path();
    std::error_code ec;
    // What a write cut off by the end of the last run left beside the save.
    std::filesystem::remove(file.string() + ".tmp", ec);
    // The player may have dealt already, before the offer came up.
    if (!found() || f_.g.gGameInProgress != 0) return;
    std::string bytes, reason;
    FileFailure failure;
    std::optional<SavedGame> saved;
    if (!readFileBounded(file, SavedGame::kLongestFile, bytes, failure))
        reason = said(f_.host, PETAL_TR("core", "it cannot be %1 (%2)"), {failure.operation, failure.reason});
    else if (bytes.size() > SavedGame::kLongestFile)
        reason = said(f_.host, PETAL_TR("core", "it is far too long"));
    else
        saved = SavedGame::parse(bytes, reason);
    if (saved && !Computer::plays(saved->options.computer)) {
        reason = said(f_.host, PETAL_TR("core", "it is a game against a computer (\"%1\") that this version does not have"),
                      {saved->options.computer});
        saved.reset();
    }
    if (!saved) return setAside(reason);
    if (f_.host.msgBox({question(*saved), "Petalgarden", MsgIcon::Question, MsgButtons::YesNo}) != MsgResult::Yes) {
        f_.journal.drop();
        return;
    }
    std::string why;
    if (!replay(*saved, why)) setAside(why);
}

// The game's options are those it was played with; the settings file follows them, as the
// setup dialog would write them.
void Resume::takeOptions(const SavedGame::Options& o) {
    Globals& g = f_.g;
    if (g.gGameType != o.gameType || g.gRounds != o.rounds || g.gUseYaku != o.useYaku)
        f_.settings.WriteSettings(o.gameType, o.rounds, o.useYaku ? -1 : 0, 0);
    f_.menu.mnuVScore.Enabled = g.gGameType != 0;
    setComputer(o.computer);
}

void Resume::setComputer(const std::string& kind) {
    if (f_.options.text("computer", "standard") == kind) return;
    const std::string problem = f_.options.set("computer", kind);
    if (!problem.empty()) f_.host.msgBox({problem, "Petalgarden", MsgIcon::Exclamation, MsgButtons::OK});
}

bool Resume::replay(const SavedGame& saved, std::string& why) {
    const Before before{f_.g.gGameType, f_.g.gRounds, f_.g.gUseYaku, f_.rnd.state(),
                        f_.options.text("computer", "standard")};
    takeOptions(saved.options);
    f_.rnd.setState(saved.rndState);
    f_.m.mTurn = saved.firstTurn;
    host_.beginReplay([this] { return f_.journal.replaySeed(); });
    f_.journal.beginReplay(saved, [this] { host_.endReplay(); });
    try {
        while (f_.journal.replaying()) replayEntry(saved.entries[f_.journal.recorded()], f_.journal.recorded());
        return true;
    } catch (const UnexpectedPrompt&) {
        throw;
    } catch (const ReplayMismatch& e) {
        why = e.what();
    } catch (const std::exception& e) {
        // Once caught up the game is live: what fails then is the game's own failure.
        if (!f_.journal.replaying()) throw;
        why = std::string("its moves do not fit the game (") + e.what() + ")";
    }
    f_.journal.cancelReplay();
    clearTable(before);
    host_.endReplay();
    return false;
}

// An entry of the player's is clicked as the player clicked it; what follows a move by itself
// (the computer's turn, a round's end, the next deal) runs on the replay's clock until the
// journal has it.
void Resume::replayEntry(const SavedGame::Entry& entry, std::size_t at) {
    switch (entry.kind) {
        case 'D':
            if (at == 0) f_.dealer.imgDeck_Click();
            break;
        case 'P':
            f_.play.imgPCard_Click(entry.slot);
            if (entry.target >= 0)
                f_.play.imgTCard_Click(entry.target);
            else
                f_.play.imgTable_Click();
            break;
        case 'F':
            f_.play.imgTCard_Click(entry.target);
            break;
        default:
            break;
    }
    while (f_.journal.replaying() && f_.journal.recorded() == at)
        if (!host_.step()) throw ReplayMismatch("its move " + std::to_string(at + 1) + " never comes");
}

void Resume::clearTable(const Before& before) {
    f_.tmrComputer.setEnabled(false);
    f_.tmrFlipTimer.setEnabled(false);
    f_.g.gGameInProgress = 0;
    f_.dealer.NewGame(true);
    f_.m.mTurn = 0;
    f_.m.mRoundNo = 0;
    f_.m.mTournamentYakus = 0;
    f_.setMousePointer(FrmMain::kPointerDefault);
    f_.rnd.setState(before.rnd);
    if (f_.g.gGameType != before.gameType || f_.g.gRounds != before.rounds || f_.g.gUseYaku != before.useYaku)
        f_.settings.WriteSettings(before.gameType, before.rounds, before.useYaku ? -1 : 0, 0);
    setComputer(before.computer);
    f_.g.dimRoundScores(f_.g.gRounds);
    f_.menu.mnuVScore.Enabled = f_.g.gGameType != 0;
}

void Resume::setAside(const std::string& reason) {
    const std::filesystem::path file = f_.journal.path();
    std::string failure;
    const std::filesystem::path aside = petal::setAside(file, failure);
    const std::string where = aside.empty() ? said(f_.host, PETAL_TR("core", "It cannot be moved aside (%1)."), {failure})
                                            : said(f_.host, PETAL_TR("core", "It is kept as \"%1\"."), {aside.string()});
    f_.host.msgBox({said(f_.host, PETAL_TR("core", "The saved game \"%1\" cannot be resumed: %2.\n\n%3"),
                         {file.string(), reason, where}),
                    "Petalgarden", MsgIcon::Exclamation, MsgButtons::OK});
}

}  // namespace petal
