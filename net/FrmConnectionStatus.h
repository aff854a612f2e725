#pragma once
// The modal wait of the network: a caption, a line of text, three cards that come and go, and
// Cancel, which asks before it ends the connection.
#include <array>
#include <string>
#include <vector>

#include "platform/Form.h"
#include "platform/Timer.h"

namespace petal {

class FrmMain;

// An address at which a friend can join the host, and for whom it is.
struct JoinPlace {
    std::string address;
    std::string what;  // "on your own network", "on the internet, over IPv6", ...
    int port = 0;
};

class FrmConnectionStatus : public Form {
public:
    explicit FrmConnectionStatus(FrmMain& f);
    ~FrmConnectionStatus() override;
    const char* formName() const override { return "frmConnectionStatus"; }

    long ConnectMode = 1;  // 1 the host's wait, 2 the client's: the wording of the cancel question
    std::string StatusCaption;
    std::string StatusMessage;
    std::string StatusDetail;
    bool CancelPressed = false;
    int AnimStep = 0;
    // Shown from the poll of the socket, which cannot tick while this form stands.
    bool shownByPoll = false;
    // A wait of the session for the peer's answer, which ends with the session.
    bool waitsForPeer = false;
    bool endedWithSession = false;
    // The wait that this one stands over, if any.
    FrmConnectionStatus* covered() const { return covered_; }

    std::string Label1;
    std::string Label2;  // under the message: what the router said, or that no network is up
    // The host's wait: where a friend can join, brought up to date as the router answers.
    bool showsWhereToJoin = false;
    std::vector<JoinPlace> joinPlaces;
    std::array<bool, 3> imgCardVisible{};  // imgCard(0..2).Visible
    Timer Timer1;

    void Form_Load() override;
    bool Form_QueryUnload(bool byUser) override;
    void Form_Unload() override;
    void Timer1_Timer();
    void cmdCancel_Click();

private:
    FrmMain& f_;
    FrmConnectionStatus* covered_ = nullptr;  // the wait this one stands over, if any
};

}  // namespace petal
