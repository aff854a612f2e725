// A peer that is no copy of the game: moves that no deal asked for, and messages that do not
// fit. The program replays what fits, and is never led by what does not.
#include <algorithm>

#include "NetFixture.h"
#include "platform/Socket.h"
#include "platform/sim/SimNetwork.h"

namespace petal::test {
namespace {

// The positions that the host's program played, each with the position it took (or -1).
struct Moves : GameEvents {
    std::vector<std::pair<int, int>> made;
    void moved(int, bool, int pos, int took, int) override { made.push_back({pos, took}); }
};

class Hostile : public NetFixture {
public:
    Hostile() : peer(world) {
        host.answers["Out of Step"] = MsgResult::OK;
        host.f().events = &moves;
    }
    // The peer joins the host as its client; then it leads the deal.
    void join() {
        act(host, [&] { host.f().mnuSetup_Click(); });
        world.act(peer.host, [&] {
            peer.socket->RemoteHost = "127.0.0.1";
            peer.socket->RemotePort = 4800;
            peer.socket->Connect();
        });
        ASSERT_TRUE(runUntil([&] { return peer.received.rfind("SEUP,", 0) == 0 && host.f().g.gConnectState == 7; }));
    }
    void deal() {
        act(host, [&] { host.f().m.mTurn = 1; });
        act(host, [&] { host.f().dealer.imgDeck_Click(); });
        ASSERT_TRUE(runUntil([&] { return peer.received.find("DEAL,") != std::string::npos; }));
    }
    // The peer hosts and the client's program joins it.
    void hostForClient() {
        world.act(peer.host, [&] {
            peer.socket->LocalPort = 4800;
            peer.socket->Listen();
        });
        act(client, [&] { client.f().mnuSetup_Click(); });
        ASSERT_TRUE(runUntil([&] { return peer.socket->State() == Socket::sckConnected && client.f().m.mConnected; }));
    }
    void send(const std::string& bytes) {
        world.act(peer.host, [&] { peer.socket->SendData(bytes); });
    }
    // Where the peer's first hand card may capture, or -1.
    int legalTarget() {
        const FrmMain& f = host.f();
        const CardRecord& card = f.m.mCards[8];
        for (std::size_t slot = 0; slot < f.ctl.imgTCard.size(); ++slot)
            if (f.ctl.imgTCard[slot].hasPicture() &&
                (card.isWild() || f.m.mCards[f.ctl.imgTCard[slot].Tag.value()].Flower == card.Flower))
                return static_cast<int>(slot);
        return -1;
    }
    RawPeer peer;
    Moves moves;
};

// A move that crossed a restart (or that no deal asked for) is void: the next deal replays
// only the moves sent for it.
TEST_F(Hostile, AMoveThatCameBeforeTheDealIsNotReplayedInIt) {
    join();
    send("CARD,1,-1");
    world.advance(500);
    deal();
    const int where = legalTarget();
    const int took = where < 0 ? -1 : static_cast<int>(host.f().ctl.imgTCard[where].Tag.value());
    send("CARD,0," + std::to_string(where));
    ASSERT_TRUE(runUntil([&] { return !moves.made.empty() || host.f().g.gPlayMode == 0; }));
    EXPECT_EQ(host.f().g.gPlayMode, 1) << "nothing was out of step";
    EXPECT_EQ(moves.made, (std::vector<std::pair<int, int>>{{8, took}})) << "the move of slot 0, not the one before the deal";
}

struct Unfit {
    const char* name;
    std::string (*bytes)(Hostile&);
};

class HostileMessage : public Hostile, public ::testing::WithParamInterface<Unfit> {};

// Each of these leaves the host's game untouched: it is told, and falls back to playing alone.
TEST_P(HostileMessage, WhatDoesNotFitIsNeverAppliedAndEndsTheSession) {
    join();
    deal();
    send(GetParam().bytes(*this));
    ASSERT_TRUE(runUntil([&] { return host.f().g.gPlayMode == 0; }, 5000));
    const auto& boxes = host.host.shownBoxes();
    const auto told = std::find_if(boxes.begin(), boxes.end(), [](const MsgBox& b) { return b.title == "Out of Step"; });
    ASSERT_NE(told, boxes.end());
    EXPECT_EQ(told->text.find("out of step: ."), std::string::npos) << "the reason is told: " << told->text;
    EXPECT_TRUE(moves.made.empty()) << "no move of the peer was applied";
    EXPECT_EQ(host.f().g.gGameInProgress, 0);
    EXPECT_EQ(host.f().socketState(), 0);
    world.advance(100);
    EXPECT_EQ(peer.socket->State(), Socket::sckClosing) << "the peer is cut off";
}

INSTANTIATE_TEST_SUITE_P(
    Unfit, HostileMessage,
    ::testing::Values(
        Unfit{"NoMessage", [](Hostile&) { return std::string("HELLO"); }},
        Unfit{"AHandSlotOutOfRange", [](Hostile&) { return std::string("CARD,9,-1"); }},
        Unfit{"ATableSlotOutOfRange", [](Hostile&) { return std::string("CARD,0,99"); }},
        Unfit{"ANumberBeyondSixteenBits", [](Hostile&) { return std::string("CARD,40000,1"); }},
        Unfit{"ADropWhileAMatchLiesOnTheTable",
              [](Hostile& t) {
                  // With no match for the card, the impossible move is a capture instead.
                  return std::string(t.legalTarget() < 0 ? "CARD,0,0" : "CARD,0,-1");
              }},
        Unfit{"AFloodWithoutAnEnd", [](Hostile&) { return "CHAT," + std::string(70 * 1024, 'x'); }},
        Unfit{"ABadAnswer", [](Hostile&) { return std::string("NEWG,7"); }}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Hostile, AHostsOptionsThatNoGameCanPlayEndTheClientsSession) {
    client.answers["Out of Step"] = MsgResult::OK;
    hostForClient();
    send("SEUP,7,3,0");
    ASSERT_TRUE(runUntil([&] { return client.f().g.gPlayMode == 0; }, 5000));
    EXPECT_TRUE(client.shown(
        "The two copies of the game are out of step: the host's options \"SEUP,7,3,0\" are no game that can be "
        "played.\n\nThe connection has been closed, and the game goes on without your opponent."));
    EXPECT_EQ(client.f().g.gGameType, 0) << "the options were not taken";
    EXPECT_EQ(client.f().connectionStatus, nullptr);
}

// Bytes that a lost connection cut short are that loss, and the player is told of the loss.
TEST_F(Hostile, AMessageCutShortByALostConnectionIsToldAsTheLoss) {
    client.answers["Out of Step"] = MsgResult::OK;
    client.answers["Remote Connection Closed"] = MsgResult::OK;
    hostForClient();
    send("SEUP,0,3,0");
    world.advance(10);
    send("DEAL,");
    world.advance(5);
    world.network().drop(true);
    ASSERT_TRUE(runUntil([&] { return client.f().g.gPlayMode == 0; }, 5000));
    EXPECT_EQ(client.boxes("Out of Step"), 0);
    EXPECT_EQ(client.boxes("Remote Connection Closed"), 1);
}

}  // namespace
}  // namespace petal::test
