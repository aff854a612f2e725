#include "net/FrmConnectionStatus.h"

#include "platform/Host.h"
#include "platform/Socket.h"
#include "shell/FrmMain.h"
#include "platform/Words.h"

namespace petal {

namespace {
// Which of the three cards show at each step of the animation.
constexpr std::array<std::array<bool, 3>, 6> kSteps = {{
    {false, false, false},
    {true, false, false},
    {true, true, false},
    {true, true, true},
    {false, true, true},
    {false, false, true},
}};
}  // namespace

FrmConnectionStatus::FrmConnectionStatus(FrmMain& f) : Timer1(f.host, [this] { Timer1_Timer(); }, 500), f_(f) {}

FrmConnectionStatus::~FrmConnectionStatus() {
    if (f_.connectionStatus == this) f_.connectionStatus = covered_;
}

void FrmConnectionStatus::Form_Load() {
    covered_ = f_.connectionStatus;
    f_.connectionStatus = this;
    Timer1.setEnabled(f_.tmrWinsockState.Enabled());
    Caption = StatusCaption;
    Label1 = StatusMessage;
    Label2 = StatusDetail;
    if (showsWhereToJoin) f_.connection.showWhereToJoin(*this);
}

void FrmConnectionStatus::Timer1_Timer() {
    f_.host.doEvents();
    if (!loaded()) return;
    const int state = f_.tcpMultiPlayer->State();
    if (state == Socket::sckConnected && f_.g.gConnectState != Socket::sckConnected) {
        Unload();
        return;
    }
    // The poll that showed this wait cannot see the connection fall until the wait returns.
    if (shownByPoll && (state == Socket::sckClosing || state == Socket::sckError)) {
        Unload();
        return;
    }
    if (showsWhereToJoin) f_.connection.showWhereToJoin(*this);
    AnimStep = AnimStep >= 5 ? 0 : AnimStep + 1;
    imgCardVisible = kSteps[AnimStep];
}

void FrmConnectionStatus::cmdCancel_Click() {
    CancelPressed = true;
    Unload();
}

bool FrmConnectionStatus::Form_QueryUnload(bool byUser) {
    if (!byUser && !CancelPressed) return false;
    const bool host = ConnectMode == 1;
    const MsgResult answer = f_.host.msgBox(
        {host ? PETAL_TR("core", "Your opponent will not be able to connect to your computer if you proceed.  Do you wish to proceed?")
              : PETAL_TR("core", "Connection to your opponent will be terminated.  Do you want to proceed? "),
         host ? PETAL_TR("core", "Cancel Connection") : PETAL_TR("core", "Close Connection"), MsgIcon::Question,
         MsgButtons::YesNo});
    if (answer != MsgResult::Yes) {
        CancelPressed = false;
        return true;
    }
    f_.tcpMultiPlayer->Close();
    f_.connection.closeRouterPort();
    f_.tcpMultiPlayer->LocalPort = 0;
    f_.net.reset();
    f_.host.endSessionBoxes();
    f_.menu.mnuVChat.Enabled = false;
    f_.settings.WriteSettings(f_.g.gGameType, f_.g.gRounds, f_.connection.yakuFlag(), 0);
    f_.tmrWinsockState.setEnabled(false);
    f_.g.gConnectState = 0;
    return false;
}

void FrmConnectionStatus::Form_Unload() {
    Timer1.setEnabled(false);
    if (f_.connectionStatus == this) f_.connectionStatus = covered_;
}

}  // namespace petal
