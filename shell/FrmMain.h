#pragma once
// The game: the main form's state, its controls and its handlers. The routines of the round,
// the scoring and the opponent are members of their own classes, reached from here.
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "cards/Globals.h"
#include "cards/MainVars.h"
#include "engine/Dealer.h"
#include "engine/DeckFlip.h"
#include "engine/HandPlay.h"
#include "engine/Rnd.h"
#include "engine/table_view/TableModel.h"
#include "net/Chat.h"
#include "net/Connection.h"
#include "net/RemoteReplay.h"
#include "net/WireProtocol.h"
#include "opponent/Computer.h"
#include "opponent/Hint.h"
#include "opponent/SeenPlays.h"
#include "records/Gardenia.h"
#include "records/OwnOptions.h"
#include "records/Statistics.h"
#include "scoring/MatchEnd.h"
#include "scoring/Piles.h"
#include "scoring/Yaku.h"
#include "shell/GameEvents.h"
#include "shell/GameJournal.h"
#include "shell/MenuModel.h"
#include "platform/Socket.h"
#include "platform/Timer.h"

namespace petal {

class Host;
class HallOfFame;
class FrmConnectionStatus;
class FrmScoreCard;

class FrmMain {
public:
    static constexpr int kPointerDefault = 0;
    static constexpr int kPointerHourglass = 11;
    static constexpr int kPointerHand = 99;

    FrmMain(Host& host, Globals& g, HallOfFame& hof);
    FrmMain(const FrmMain&) = delete;
    FrmMain& operator=(const FrmMain&) = delete;

    Host& host;
    Globals& g;
    HallOfFame& hof;
    MainVars m;
    TableModel ctl;
    MenuModel menu;
    std::string Caption;
    std::string helpFile;
    Rnd rnd;  // the platform's random generator, reset by network deals
    GameEvents* events = nullptr;
    Gardenia settings;
    OwnOptions options;  // ours, beside the settings file

    Timer tmrComputer;
    Timer tmrFlipTimer;
    Timer tmrWinsockState;
    std::unique_ptr<Socket> tcpMultiPlayer;

    Dealer dealer;
    HandPlay play;
    DeckFlip flip;
    Piles piles;
    Yaku yaku;
    MatchEnd matchEnd;
    Computer computer;
    Hint hint;
    SeenPlays seenPlays;  // the hand cards played this deal, for the strong computer and the hint
    RemoteReplay remote;
    WireProtocol net;
    Connection connection;
    Chat chat;
    GameJournal journal;  // the save of a game in progress, and each game's statistics
    Statistics stats;

    // The forms of these kinds on screen, if any: others unload them.
    FrmConnectionStatus* connectionStatus = nullptr;
    FrmScoreCard* scoreCard = nullptr;

    int MousePointer() const { return mousePointer_; }
    void setMousePointer(int pointer);

    void Form_Load();
    // Returns true to refuse the closing; otherwise the program is to end.
    bool Form_Unload();
    // "Unload frmMain": closing runs through Form_Unload and ends the program unless refused.
    void Unload();

    void mnuExit_Click() { Unload(); }
    void mnuSound_Click() { toggleOption(menu.mnuSound, "sound"); }
    void mnuAnimations_Click() { toggleOption(menu.mnuAnimations, "animations"); }
    void mnuVChat_Click() { chat.show(); }
    void mnuVScore_Click();
    void mnuSetup_Click();
    // A network session that the command line asks for, begun as Setup's OK begins one with
    // the settings as they stand; port 0 is the game's own.
    void startSession(int playMode, const std::string& address, int port);
    void mnuVHallofFame_Click();
    void mnuStatistics_Click();
    void mnuHAbout_Click();
    // Help has no call of its own: the entry presses F1 for the user, and F1 opens helpFile.
    void mnuHHelp_Click();
    void mnuHint_Click() { hint.mnuHint_Click(); }
    // The menu flags that follow the game's state rather than its events: the hint is offered
    // exactly when a move of the player's waits in single play, and the score card in a
    // tournament, which a client learns of only when the host's options arrive.
    void syncMenu() {
        menu.mnuHint.Enabled = hint.offered();
        menu.mnuVScore.Enabled = g.gGameType != 0;
    }

    // Each takes away only the hand pointer, so the hourglass survives every mouse movement.
    void Form_MouseMove() { restoreArrow(); }
    void imgPCard_MouseMove() { restoreArrow(); }
    void imgPPoint00_MouseMove() { restoreArrow(); }
    void Picture1_MouseMove() { restoreArrow(); }
    void Picture2_MouseMove() { restoreArrow(); }

    // The one call for sounds, a file's full path in the program's folder: the host plays it
    // while Game > Sound is checked. The last path asked for is kept for tests.
    void PlaySound(const std::string& path);
    // The same for a file of the program's folder by name, the path built where the last one
    // stood: the sounds of every move cost no allocation.
    void playSoundFile(std::string_view name);
    const std::string& lastSound() const { return lastSound_; }
    // name: a file's name, no folder in it.
    std::string programFile(const std::string& name) const;

    void EndMatch() { matchEnd.EndMatch(); }

    // The last message received by this side: the host's or the client's.
    std::string& recvBuffer() { return g.gPlayMode == 2 ? m.mClientRecv : m.mHostRecv; }
    // Sends one message to the peer and waits for it to leave.
    void sendToPeer(const std::string& message) { net.send(message); }
    // The state of the TCP link: 0 closed, 7 connected, 8 the peer is closing.
    int socketState() const { return tcpMultiPlayer->State(); }
    // Shows the modal wait of the network until the peer's answer unloads it; false when the
    // session ended instead.
    bool waitForPeer(const std::string& caption, const std::string& message) {
        return connection.waitForPeer(caption, message);
    }

    void restoreArrow() {
        if (mousePointer_ == kPointerHand) setMousePointer(kPointerDefault);
    }

private:
    void toggleOption(MenuItem& item, const std::string& key);
    void startChosenMode();

    int mousePointer_ = kPointerDefault;
    // The program's folder and the separator that joins a file name to it, found once.
    mutable std::string programFolderSlash_;
    std::string lastSound_;
};

}  // namespace petal
