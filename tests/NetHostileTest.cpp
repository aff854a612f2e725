// A peer that is no copy of the game: bytes in odd pieces, several moves in one read, and
// messages that do not fit. The program replays what fits, and is never led by what does not.
#include <algorithm>

#include "NetFixture.h"
#include "cards/Val.h"
#include "platform/Socket.h"
#include "platform/sim/SimNetwork.h"

namespace petal::test {
namespace {

// A bare socket in the world, driven by the test.
struct RawPeer {
    explicit RawPeer(SimWorld& world) : host(dir.path()) {
        world.join(host);
        socket = host.createSocket();
        socket->DataArrival = [this](long) { received += socket->GetData(); };
        socket->ConnectionRequest = [this](long id) { socket->Close(), socket->Accept(id); };
    }
    TempDir dir;
    SimHost host;
    std::unique_ptr<Socket> socket;
    std::string received;
};

// The record of every move the host's program made.
struct Moves : GameEvents {
    struct Move {
        int side, pos, took, slot;
        bool fromDeck;
        bool operator==(const Move&) const = default;
    };
    std::vector<Move> made;
    void moved(int side, bool fromDeck, int pos, int took, int slot) override {
        made.push_back({side, pos, took, slot, fromDeck});
    }
};

class Hostile : public NetFixture {
public:
    Hostile() : peer(world) {
        host.answers["Out of Step"] = MsgResult::OK;
        host.f().events = &moves;
    }
    // The peer joins the host as its client and leads the deal.
    void joinAndDeal() {
        join();
        deal();
    }
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
    // The peer's first hand card as a legal move: where it may capture, or -1.
    std::pair<int, int> legalHandMove() {
        const FrmMain& f = host.f();
        const CardRecord& card = f.m.mCards[8];
        for (std::size_t slot = 0; slot < f.ctl.imgTCard.size(); ++slot)
            if (f.ctl.imgTCard[slot].hasPicture() &&
                (card.isWild() || f.m.mCards[f.ctl.imgTCard[slot].Tag.value()].Flower == card.Flower))
                return {0, static_cast<int>(slot)};
        return {0, -1};
    }
    RawPeer peer;
    Moves moves;
};

TEST_F(Hostile, AMoveInPiecesAndMovesInOneReadAreEachReplayedOnce) {
    joinAndDeal();
    const auto [slot, where] = legalHandMove();
    const std::string move = "CARD," + std::to_string(slot) + "," + std::to_string(where);
    send(move.substr(0, 6));
    world.advance(30);
    send(move.substr(6));
    const int took = where < 0 ? -1 : static_cast<int>(host.f().ctl.imgTCard[where].Tag.value());
    ASSERT_TRUE(runUntil([&] { return !moves.made.empty(); }));
    EXPECT_EQ(moves.made.size(), 1u) << "one move, taken once";
    EXPECT_EQ(moves.made[0].side, 1);
    EXPECT_EQ(moves.made[0].pos, 8);
    EXPECT_EQ(moves.made[0].took, took);
    if (where >= 0) {
        EXPECT_EQ(moves.made[0].slot, where);
    }
    // The flipped card follows the host's deck; if it waits, its move comes merged with a
    // chat line, and both are taken.
    ASSERT_TRUE(runUntil([&] { return host.f().m.mCompPhase == 3 || moves.made.size() > 1; }));
    std::vector<std::string> chat;
    host.f().net.chatReceived = [&](const std::string& line) { chat.push_back(line); };
    ASSERT_TRUE(host.f().ctl.imgFlipCard.hasPicture()) << "this deal's first flip of the peer matches";
    {
        int framed = 0;
        while (!host.f().ctl.shpTHilite[framed].Visible) ++framed;
        send("CHAT,a,b" + std::string("CARD,") + host.f().ctl.imgFlipCard.Tag.text() + "," + std::to_string(framed));
        ASSERT_TRUE(runUntil([&] { return moves.made.size() == 2; }));
        EXPECT_EQ(moves.made[1].slot, framed);
        EXPECT_EQ(chat, std::vector<std::string>{"a,b"});
    }
    ASSERT_TRUE(runUntil([&] { return host.f().m.mTurn == 0; }));
    EXPECT_EQ(host.f().m.mCompPlays, 1);
    EXPECT_EQ(host.f().g.gPlayMode, 1) << "nothing was out of step";
}

// A move that crossed a restart (or that no deal asked for) is void: the next deal replays
// only the moves sent for it.
TEST_F(Hostile, AMoveThatCameBeforeTheDealIsNotReplayedInIt) {
    join();
    send("CARD,1,-1");
    world.advance(500);
    deal();
    const auto [slot, where] = legalHandMove();
    const int took = where < 0 ? -1 : static_cast<int>(host.f().ctl.imgTCard[where].Tag.value());
    send("CARD," + std::to_string(slot) + "," + std::to_string(where));
    ASSERT_TRUE(runUntil([&] { return !moves.made.empty() || host.f().g.gPlayMode == 0; }));
    EXPECT_EQ(host.f().g.gPlayMode, 1) << "nothing was out of step";
    ASSERT_EQ(moves.made.size(), 1u);
    EXPECT_EQ(moves.made[0].pos, 8) << "the move of slot 0, not the one that came before the deal";
    EXPECT_EQ(moves.made[0].took, took);
}

struct Unfit {
    const char* name;
    std::string (*bytes)(Hostile&);
};

class HostileMessage : public Hostile, public ::testing::WithParamInterface<Unfit> {
public:
    using Hostile::legalHandMove;
};

// Each of these leaves the host's game untouched: it is told, and falls back to playing alone.
TEST_P(HostileMessage, WhatDoesNotFitIsNeverAppliedAndEndsTheSession) {
    joinAndDeal();
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
                  return std::string(t.legalHandMove().second < 0 ? "CARD,0,0" : "CARD,0,-1");
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

TEST_F(Hostile, AHostsTournamentOffersTheClientItsScoreCard) {
    hostForClient();
    send("SEUP,1,3,0");
    ASSERT_TRUE(runUntil([&] { return client.f().g.gGameType == 1; }, 5000));
    client.f().syncMenu();
    EXPECT_TRUE(client.f().menu.mnuVScore.Enabled);
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
