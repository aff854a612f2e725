#include "shell/FrmMain.h"

#include "records/FrmHOF.h"
#include "records/FrmStatistics.h"
#include "records/HallOfFame.h"
#include "scoring/FrmScoreCard.h"
#include "platform/FatalError.h"
#include "shell/FrmSetup.h"
#include "shell/FrmSplash.h"
#include "platform/Host.h"
#include "platform/Words.h"

namespace petal {

FrmMain::FrmMain(Host& host_, Globals& g_, HallOfFame& hof_)
    : host(host_),
      g(g_),
      hof(hof_),
      settings(host_, g_, Caption),
      tmrComputer(host_, [this] { computer.tmrComputer_Timer(); }, 1000),
      tmrFlipTimer(host_, [this] { flip.tmrFlipTimer_Timer(); }, 1000),
      tmrWinsockState(host_, [this] { connection.tmrWinsockState_Timer(); }, 500),
      tcpMultiPlayer(host_.createSocket()),
      dealer(*this),
      play(*this),
      flip(*this),
      piles(*this),
      yaku(*this),
      matchEnd(*this),
      computer(*this),
      hint(*this),
      remote(*this),
      net(*this),
      connection(*this),
      chat(*this),
      journal(*this),
      stats(host_) {
    net.chatReceived = [this](const std::string& line) { chat.receive(line); };
    tcpMultiPlayer->ConnectionRequest = [this](long id) { connection.tcpMultiPlayer_ConnectionRequest(id); };
    tcpMultiPlayer->DataArrival = [this](long bytes) { net.tcpMultiPlayer_DataArrival(bytes); };
    tcpMultiPlayer->SendComplete = [this] { net.tcpMultiPlayer_SendComplete(); };
    tcpMultiPlayer->Error = [this](int number, const std::string& text) { connection.tcpMultiPlayer_Error(number, text); };
}

void FrmMain::setMousePointer(int pointer) {
    if (pointer == mousePointer_) return;
    mousePointer_ = pointer;
    host.setMousePointer(pointer);
}

void FrmMain::PlaySound(const std::string& path) {
    lastSound_ = path;
    if (menu.mnuSound.Checked) host.playSound(path);
}

void FrmMain::playSoundFile(std::string_view name) {
    if (programFolderSlash_.empty()) programFile({});
    lastSound_.assign(programFolderSlash_).append(name);
    if (menu.mnuSound.Checked) host.playSound(lastSound_);
}

// The folder is asked of the host once: the sound calls of every capture build paths in it.
std::string FrmMain::programFile(const std::string& name) const {
    if (programFolderSlash_.empty()) programFolderSlash_ = (host.programFolder() / "").string();
    return programFolderSlash_ + name;
}

void FrmMain::Form_Load() {
    Caption = "Petalgarden";
    helpFile = (host.helpFolder() / "PetalgardenHelp.html").string();
    settings.LoadSettings();
    options.load(host.programFolder());
    if (!options.problem().empty())
        host.msgBox({said(host, PETAL_TR("core", "%1\n\nThe game goes on with its usual options."), {options.problem()}),
                     "Petalgarden",
                     MsgIcon::Exclamation, MsgButtons::OK});
    menu.mnuSound.Checked = options.flag("sound", true);
    menu.mnuAnimations.Checked = options.flag("animations", true);
    m.mHiliteColor = {0xFF0000, 0x0000FF};
    static constexpr const char* kCodes[24] = {"11", "12", "13", "21", "22", "23", "31", "32",
                                               "33", "41", "42", "43", "51", "52", "53", "61",
                                               "62", "63", "71", "72", "73", "81", "82", "83"};
    for (int i = 0; i < 24; ++i) g.gYakuCodes[i] = kCodes[i];
    m.mCardBack = ctl.imgCCard[0].Picture;
    menu.mnuVScore.Enabled = g.gGameType != 0;
    menu.mnuVChat.Enabled = g.gPlayMode > 0;
    // The settings always leave the program in single play; a session starts from Setup.
    if (g.gPlayMode > 0) connection.StartConnection();
}

bool FrmMain::Form_Unload() {
    if (g.gGameInProgress <= 0) return false;
    const MsgResult answer = host.msgBox({PETAL_TR("core", "Are you sure?"), PETAL_TR("core", "Quit Petalgardn"), MsgIcon::Question, MsgButtons::YesNo});
    if (answer != MsgResult::Yes) {
        // Timers ran while the question stood: the game may have ended meanwhile.
        if (g.gGameInProgress == 0) dealer.NewGame(true);
        return true;
    }
    if (g.gPlayMode != 0) tcpMultiPlayer->Close();
    connection.closeRouterPort();
    hof.CloseHallOfFame();
    return false;
}

void FrmMain::mnuVScore_Click() {
    FrmScoreCard card(*this);
    card.mFromMenu = true;
    host.showModal(card);
}

void FrmMain::mnuVHallofFame_Click() {
    FrmHOF hall(g, hof);
    host.showModal(hall);
}

void FrmMain::mnuStatistics_Click() {
    FrmStatistics record(host, stats);
    host.showModal(record);
}

void FrmMain::mnuHAbout_Click() {
    FrmSplash splash(*this);
    splash.mAboutMode = true;
    host.showModal(splash);
}

void FrmMain::mnuHHelp_Click() { host.sendKeys("{F1}"); }

void FrmMain::mnuSetup_Click() {
    // Failures while the dialog loads end this routine without a word, as the menu's own
    // error trap has it; failures of the dialog's buttons end the program as usual.
    try {
        FrmSetup setup(*this);
        host.showModal(setup);
    } catch (const FatalError&) {
        return;
    }
    if (socketState() == 0) m.mConnected = false;
    if (g.gSetupCancelled) return;
    connection.closeRouterPort();
    startChosenMode();
}

void FrmMain::startSession(int playMode, const std::string& address, int port) {
    connection.port = port != 0 ? port : Connection::kPort;
    settings.WriteSettings(g.gGameType, g.gRounds, g.gUseYaku ? -1 : 0, playMode);
    g.gHostIP = address;
    tmrWinsockState.setEnabled(true);
    startChosenMode();
}

// The play mode that Setup or the command line chose: single play, or the session begun.
void FrmMain::startChosenMode() {
    menu.mnuVScore.Enabled = g.gGameType != 0;
    if (g.gPlayMode <= 0) {
        menu.mnuVChat.Enabled = false;
        // The player leads a game that the dialog has reset; a deal that No left running
        // keeps its turn, or the computer's move under way would end on the player's turn.
        if (g.gGameInProgress <= 0) m.mTurn = 0;
        setMousePointer(kPointerDefault);
        return;
    }
    // The socket's refusal of an operation in its state is told and the next step goes on;
    // any other failure ends this routine without a word.
    const auto trapped = [this](const std::function<void()>& step) {
        try {
            step();
            return true;
        } catch (const SocketError& e) {
            if (e.number() != Socket::kInvalidOperation) return false;
            host.msgBox({e.what(), said(host, PETAL_TR("core", "Connection Error %1"), {std::to_string(e.number())}), MsgIcon::Exclamation, MsgButtons::OK});
            return true;
        }
    };
    m.mLocalReady = m.mPeerReady = true;
    if (!trapped([this] { connection.StartConnection(); })) return;
    menu.mnuVChat.Enabled = true;
    if (g.gPlayMode == 2) trapped([this] { tcpMultiPlayer->Connect(); });
}

// The mark turns at once and the file keeps it for the next start; a file that cannot be
// written is told, and the choice holds for this run.
void FrmMain::toggleOption(MenuItem& item, const std::string& key) {
    item.Checked = !item.Checked;
    const std::string failure = options.setFlag(key, item.Checked);
    if (!failure.empty()) host.msgBox({failure, "Petalgarden", MsgIcon::Exclamation, MsgButtons::OK});
}

void FrmMain::Unload() {
    if (!Form_Unload()) host.endProgram();
}

}  // namespace petal
