#include "shell/FrmSetup.h"

#include <climits>
#include <stdexcept>

#include "cards/Val.h"
#include "net/Connection.h"
#include "net/JoinAddress.h"
#include "shell/FrmMain.h"
#include "platform/Host.h"
#include "platform/Socket.h"
#include "platform/Words.h"

namespace petal {

FrmSetup::FrmSetup(FrmMain& f) : f_(f) {
    txtRounds = {"", false, kButtonFace, 2};
    txtHostIP = {"", false, kButtonFace, kHostLength};
}

void FrmSetup::Form_Load() {
    mLoading = true;
    f_.settings.ReadSettings();  // fails only if the file has gone
    selectGameType(f_.g.gGameType);
    // Set by the program, the boxes take the whole text: their limits hold for typing only.
    txtRounds.Text = std::to_string(f_.g.gRounds);
    chkUseYaku = f_.g.gUseYaku ? 1 : 0;
    selectGame(f_.g.gPlayMode);
    txtHostIP.Text = f_.g.gHostIP;
    selectComputer(f_.options.text(Computer::kOption, "standard") == "strong" ? 1 : 0);
    chkRouterPort = f_.options.flag(Connection::kRouterOption, false) ? 1 : 0;
}

void FrmSetup::selectGameType(int index) {
    if (index < 0 || index > 1) throw std::out_of_range("optGameType(" + std::to_string(index) + ")");
    if (optGameType[index]) return;
    optGameType = {index == 0, index == 1};
    optGameType_Click(index);
}

void FrmSetup::selectGame(int index) {
    if (index < 0 || index > 2) throw std::out_of_range("optGame(" + std::to_string(index) + ")");
    if (optGame[index]) return;
    optGame = {index == 0, index == 1, index == 2};
    optGame_Click(index);
}

void FrmSetup::optGameType_Click(int Index) {
    const bool tournament = Index == 1;
    txtRounds.Enabled = tournament;
    txtRounds.BackColor = tournament ? kWhite : kButtonFace;
    lblRoundsEnabled = tournament;
}

void FrmSetup::optGame_Click(int Index) {
    computerEnabled = Index == 0;
    routerPortEnabled = Index == 1;
    if (Index == 2) {
        txtHostIP.Enabled = true;
        txtHostIP.BackColor = kWhite;
        return;
    }
    txtHostIP.Enabled = false;
    txtHostIP.BackColor = kGrey;
    f_.g.gHostIP.clear();  // at once: it stands even if the dialog is cancelled
}

int FrmSetup::txtRounds_KeyPress(int KeyAscii) { return (KeyAscii >= '0' && KeyAscii <= '9') || KeyAscii == 8 ? KeyAscii : 0; }

void FrmSetup::setText(SetupTextBox& box, const std::string& text) { box.Text = text.substr(0, box.MaxLength); }

bool FrmSetup::FormValidation() {
    if (optGameType[1]) {
        const long rounds = Val(txtRounds.Text);
        if (rounds < 2 || rounds > 20) {
            mInvalidControl = Field::Rounds;
            f_.host.msgBox({PETAL_TR("core", "Rounds cannot be less than 2 or greater than 20."),
                            PETAL_TR("core", "Invalid Rounds Value"), MsgIcon::Exclamation, MsgButtons::OK});
            return false;
        }
        const std::size_t first = txtHostIP.Text.find_first_not_of(' ');
        if (optGame[2] && first == std::string::npos) {
            mInvalidControl = Field::HostIP;
            f_.host.msgBox({PETAL_TR("core", "Host IP field cannot be left blank."), PETAL_TR("core", "Required Field"),
                            MsgIcon::Exclamation, MsgButtons::OK});
            return false;
        }
    }
    // Ours: text that names no host is told here, before anything is sent.
    if (optGame[2] && !parseJoinAddress(txtHostIP.Text)) {
        mInvalidControl = Field::HostIP;
        f_.host.msgBox({kNoAddress, PETAL_TR("core", "Host Address"), MsgIcon::Exclamation, MsgButtons::OK});
        return false;
    }
    return true;
}

int FrmSetup::selectedPlayMode() const {
    for (int i = 0; i < 3; ++i)
        if (optGame[i]) return i;
    return 0;
}

void FrmSetup::writeChoices(int playMode) {
    const long rounds = Val(txtRounds.Text);
    f_.settings.WriteSettings(optGameType[0] ? 0 : 1, static_cast<int>(rounds), chkUseYaku ? -1 : 0, playMode);
    // The choice holds for this run even when its file cannot be written; the player is told.
    const bool routerPort = chkRouterPort != 0;
    const std::string router = routerPort == f_.options.flag(Connection::kRouterOption, false)
                                   ? std::string()
                                   : f_.options.setFlag(Connection::kRouterOption, routerPort);
    std::string problem = f_.options.set(Computer::kOption, optComputer[1] ? "strong" : "standard");
    if (problem.empty()) problem = router;
    if (!problem.empty())
        f_.host.msgBox({said(f_.host, PETAL_TR("core", "%1\n\nThe options you chose hold until the program ends."), {problem}),
                        "Petalgarden",
                        MsgIcon::Exclamation, MsgButtons::OK});
}

void FrmSetup::cmdOK_Click() {
    if (!FormValidation()) {
        focus = mInvalidControl;
        return;
    }
    Globals& g = f_.g;
    const int playMode = selectedPlayMode();
    // Setup's OK starts the connection anew, or leaves it for single play: either way the
    // opponent is dropped.
    const bool connected = g.gPlayMode == 1 && f_.socketState() == Socket::sckConnected;
    if (connected && f_.host.msgBox({PETAL_TR("core", "Your opponent is connected.  Saving the changes you made will "
                                                      "end the connection.  Do you want to proceed?"),
                                     PETAL_TR("core", "Opponent Connected"), MsgIcon::Question, MsgButtons::YesNo}) != MsgResult::Yes)
        return;
    if (g.gGameInProgress <= 0) {
        if (connected && playMode == 0) f_.tcpMultiPlayer->Close();
        writeChoices(playMode);
        if (g.gPlayMode != 0) g.gHostIP = txtHostIP.Text;
        f_.tmrWinsockState.setEnabled(g.gPlayMode != 0);
    } else {
        const std::string question =
            PETAL_TR("core", "A game is already in session.  Saving the changes you made will reset the current game.  "
                             "Do you want to proceed?");
        if (f_.host.msgBox({question, PETAL_TR("core", "Reset Game"), MsgIcon::Question, MsgButtons::YesNo}) == MsgResult::Yes) {
            writeChoices(playMode);
            if (playMode == 0) {
                f_.tcpMultiPlayer->Close();
                f_.tmrWinsockState.setEnabled(false);
                g.gConnectState = 0;
                g.gGameInProgress = 0;
                f_.dealer.NewGame(true);
            } else {
                f_.dealer.NewGame(true);
                f_.tmrWinsockState.setEnabled(true);
            }
        }
    }
    mSetupOK = true;
    Unload();
}

void FrmSetup::Form_Unload() {
    f_.g.gSetupCancelled = !mSetupOK;
    mInvalidControl = Field::None;
}

}  // namespace petal
