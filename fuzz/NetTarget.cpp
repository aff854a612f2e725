// What a peer sends, as a fuzz target: the program hosts or joins a bare socket on the simulated
// network, and the input's bytes reach it in pieces over its whole receive path (the framer, the
// dispatch, the replay of the peer's moves, chat).
//
// An input: byte 0, bit 0: the program joins (else it hosts); bit 1: a deal stands first, the
// peer leading, so that its moves are replayed. Byte 1: the deal's seed and the local player's
// choices. Then pieces, each a length byte, a control byte and that many bytes: control bits
// 0-6 the pause before the piece in steps of 10 ms; bit 7: the local player moves first, if it
// may. After every piece and at the end, the table keeps its rules, every chat line shown is
// one the peer sent, and after "Out of Step" the program plays alone.
#include <algorithm>
#include <cstdio>

#include "FuzzTarget.h"
#include "Policy.h"
#include "ProgramRig.h"
#include "SimPlay.h"
#include "TableInvariants.h"
#include "net/FrmConnectionStatus.h"
#include "net/MessageFramer.h"
#include "platform/Socket.h"
#include "platform/sim/SimWorld.h"

namespace petal::fuzz {

namespace {

constexpr int kPort = 4800;
constexpr std::int64_t kSetUpMs = 5'000;
constexpr std::int64_t kTailMs = 1'500;  // past the framer's settle pause and the turn driver's ticks

class NetTarget : public FuzzTarget {
public:
    std::string run(const std::uint8_t* data, std::size_t size) override {
        SimWorld world;
        ProgramRig rig(&world);
        SimHost peerHost(rig.file(""));
        world.join(peerHost);
        const std::unique_ptr<Socket> peer = peerHost.createSocket();
        world_ = &world, rig_ = &rig, peerHost_ = &peerHost, peer_ = peer.get();
        sent_.clear();
        joins_ = size > 0 && (data[0] & 1) != 0;
        const int seed = size > 1 ? data[1] : 0;
        if (!connect()) return "setting the session up: " + rig.failure();
        if (size > 0 && (data[0] & 2) != 0 && !deal(seed)) return "dealing: " + rig.failure();
        sim::Policy policy(true, static_cast<std::uint64_t>(seed));
        for (std::size_t at = 2; at < size;) {
            const std::size_t length = data[at++];
            const std::uint8_t control = at < size ? data[at++] : 0;
            const std::string bytes(reinterpret_cast<const char*>(data + at), std::min(length, size - at));
            at += bytes.size();
            FrmMain& f = rig.f();
            if ((control & 0x80) && !rig.host().waiting() && sim::canMove(f)) rig.act([&] { sim::localMove(f, policy); });
            rig.guard([&] { world.advance((control & 0x7F) * 10); });
            if (std::string broken = check(); !broken.empty()) return broken;
            send(bytes);
        }
        rig.guard([&] { world.advance(kTailMs); });
        return check();
    }

private:
    bool linked() {
        const FrmMain& f = rig_->f();
        return peer_->State() == Socket::sckConnected && f.socketState() == Socket::sckConnected &&
               (joins_ ? f.m.mConnected : f.g.gConnectState == Socket::sckConnected);
    }

    void send(const std::string& bytes) {
        if (bytes.empty() || peer_->State() != Socket::sckConnected) return;
        sent_ += bytes;
        rig_->guard([&] { world_->act(*peerHost_, [&] { peer_->SendData(bytes); }); });
    }

    bool connect() {
        if (!rig_->start()) return false;
        FrmMain& f = rig_->f();
        f.net.chatReceived = [this, &f](const std::string& line) {
            // The framer cuts lines out of the stream; it never makes one up.
            if (typedLine(sent_).find("CHAT," + line) == std::string::npos) rig_->fail("a chat line that the peer never sent");
            f.chat.receive(line);
        };
        rig_->onForm = [this](Form& form) {
            if (auto* status = dynamic_cast<FrmConnectionStatus*>(&form))
                rig_->host().waitUntil([status] { return !status->loaded(); });
        };
        peer_->DataArrival = [this](long) { peer_->GetData(); };
        peer_->ConnectionRequest = [this](long id) { peer_->Close(), peer_->Accept(id); };
        if (joins_)
            world_->act(*peerHost_, [this] {
                peer_->LocalPort = kPort;
                peer_->Listen();
            });
        rig_->act([this, &f] { f.startSession(joins_ ? 2 : 1, "127.0.0.1", kPort); });
        if (!joins_)
            world_->act(*peerHost_, [this] {
                peer_->RemoteHost = "127.0.0.1";
                peer_->RemotePort = kPort;
                peer_->Connect();
            });
        return rig_->guard([&] { world_->runUntil([this] { return linked(); }, kSetUpMs); }) && linked();
    }

    // A deal from a seed of the input's, the peer leading: the host deals it, a client hears it.
    bool deal(int seed) {
        FrmMain& f = rig_->f();
        if (joins_) {
            char message[32];
            std::snprintf(message, sizeof message, "DEAL,%02d:%02d:00,1", seed % 24, seed * 7 % 60);
            send(message);
        } else {
            rig_->host().setClock(seed % 24, seed * 7 % 60, 0);
            rig_->act([&f] {
                f.m.mTurn = 1;
                f.dealer.imgDeck_Click();
            });
        }
        const auto dealt = [&f] { return f.g.gGameInProgress == 1 && !f.connectionStatus; };
        return rig_->guard([&] { world_->runUntil(dealt, kSetUpMs); }) && dealt();
    }

    std::string check() {
        if (!rig_->failure().empty()) return rig_->failure();
        const FrmMain& f = rig_->f();
        if (std::string broken = sim::TableInvariants::check(f); !broken.empty()) return broken;
        const auto& boxes = rig_->host().shownBoxes();
        const bool outOfStep =
            std::any_of(boxes.begin(), boxes.end(), [](const MsgBox& box) { return box.title == "Out of Step"; });
        if (outOfStep && (f.g.gPlayMode != 0 || f.socketState() != Socket::sckClosed))
            return "after \"Out of Step\" the program does not play alone";
        return "";
    }

    SimWorld* world_ = nullptr;
    ProgramRig* rig_ = nullptr;
    SimHost* peerHost_ = nullptr;
    Socket* peer_ = nullptr;
    std::string sent_;
    bool joins_ = false;
};

}  // namespace

std::unique_ptr<FuzzTarget> makeNetTarget() { return std::make_unique<NetTarget>(); }

}  // namespace petal::fuzz
