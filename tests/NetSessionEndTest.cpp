// Two programs over the simulated network, played by people who take a moment over every box,
// so that the game's events run while the boxes stand, as they do on a desktop: the ends of a
// session and of a rematch, and what each side is told.
#include "NetFixture.h"
#include "net/FrmConnectionStatus.h"
#include "platform/sim/SimNetwork.h"
#include "platform/Timer.h"

namespace petal::test {
namespace {

constexpr int kThinkMs = 600;  // longer than the poll of the socket, which runs meanwhile

class SlowPlayers : public NetFixture {
protected:
    SlowPlayers() {
        for (Side* side : {&host, &client}) {
            side->host.onMsgBox = [this, side, answer = side->host.onMsgBox](const MsgBox& box) {
                bool read = thinkMs == 0;
                Timer reading(side->host, [&read] { read = true; }, thinkMs);
                reading.setEnabled(!read);
                side->host.waitUntil([&read] { return read; });
                if (beforeAnswer) beforeAnswer(*side, box);
                return answer(box);
            };
        }
    }
    int thinkMs = kThinkMs;
    // What a player waits for before answering a box, once it has read it.
    std::function<void(Side&, const MsgBox&)> beforeAnswer;
};

// When the refusal comes: while the other side waits for it, before the other side has asked
// (it still replays the last move), or while the other side's own question stands.
enum class When { WhileWaiting, BeforeAsking, WhileAsking };

struct Decline {
    const char* name;
    bool hostDeclines;
    int rounds;  // 0: a single game
    When when;
};

class DeclinedRematch : public SlowPlayers, public ::testing::WithParamInterface<Decline> {};

// One side says No to another game and leaves: the other side is told both and plays on alone,
// except that a refusal that comes while its own question stands is only the end of the connection.
TEST_P(DeclinedRematch, TheOtherSideIsToldAndPlaysAlone) {
    const Decline d = GetParam();
    Side& decliner = d.hostDeclines ? host : client;
    Side& waiter = d.hostDeclines ? client : host;
    if (d.rounds > 0) hostOptions(1, d.rounds, true);
    decliner.answers["Play Again?"] = MsgResult::No;
    waiter.answers = {{"Play Again?", MsgResult::Yes},          {"Rematch Declined", MsgResult::OK},
                      {"Remote Connection Closed", MsgResult::OK}, {"Reconnect", MsgResult::No},
                      {"Connection Successful", MsgResult::OK}};
    ASSERT_TRUE(connect());
    if (d.when == When::BeforeAsking) {
        thinkMs = 0;
        act(host, [&] { host.f().m.mTurn = 1; });  // the client leads: the host moves last
    }
    ASSERT_TRUE(deal());
    beforeAnswer = [&](Side& side, const MsgBox& box) {
        if (box.title != "Play Again?") return;
        if (&side == &decliner && d.when == When::WhileWaiting) {
            side.host.waitUntil([&] { return waiter.f().connectionStatus != nullptr; });
            EXPECT_EQ(waiter.f().connectionStatus->Label1, "Asking your opponent for another game.");
        }
        if (&side == &waiter && d.when == When::WhileAsking) side.host.waitUntil([&] { return decliner.host.ending(); });
    };
    ASSERT_TRUE(playUntil([&] { return decliner.host.ending(); }));
    if (d.when == When::BeforeAsking) {
        EXPECT_LT(waiter.ends.count, 1) << "the client was still replaying";
    }
    ASSERT_TRUE(runUntil([&] { return waiter.f().g.gPlayMode == 0 && !waiter.host.waiting(); }));
    EXPECT_EQ(waiter.shown("Your opponent declined a rematch."), d.when != When::WhileAsking);
    if (d.when == When::WhileAsking) {
        EXPECT_TRUE(waiter.shown("Your host has just terminated the network connection."));
    }
    EXPECT_EQ(waiter.f().connectionStatus, nullptr);
    EXPECT_FALSE(waiter.host.ending());
}

INSTANTIATE_TEST_SUITE_P(
    EitherSide, DeclinedRematch,
    ::testing::Values(Decline{"HostDeclinesASingleGame", true, 0, When::WhileWaiting},
                      Decline{"ClientDeclinesASingleGame", false, 0, When::WhileWaiting},
                      Decline{"HostDeclinesATournament", true, 2, When::WhileWaiting},
                      Decline{"ClientDeclinesATournament", false, 2, When::WhileWaiting},
                      Decline{"HostDeclinesBeforeTheClientAsks", true, 0, When::BeforeAsking},
                      Decline{"HostDeclinesWhileTheClientAsks", true, 0, When::WhileAsking}),
    [](const auto& info) { return std::string(info.param.name); });

// A refused join tells the reason first, then asks; every try alike.
TEST_F(SlowPlayers, ARefusedJoinTellsTheReasonThenAsksEachTime) {
    int tries = 0;
    client.answers = {{"Winsock Error 10061", MsgResult::OK}};
    beforeAnswer = [&](Side&, const MsgBox& box) {
        if (box.title == "Reconnect") client.answers["Reconnect"] = ++tries < 2 ? MsgResult::Yes : MsgResult::No;
    };
    act(client, [&] { client.f().mnuSetup_Click(); });  // nobody listens
    ASSERT_TRUE(runUntil([&] { return client.f().g.gPlayMode == 0 && !client.host.waiting(); }));
    EXPECT_EQ(client.titles(),
              (std::vector<std::string>{"Winsock Error 10061", "Reconnect", "Winsock Error 10061", "Reconnect"}));
    EXPECT_TRUE(client.shown("Connection refused"));
    EXPECT_EQ(client.f().connectionStatus, nullptr);
}

// The client vanishes while the host's "Do you want to play again?" stands; the host connects
// again and a new client joins. The question went with its session: it asks nothing of the new
// one, and the host deals the new session's game from the deck.
TEST_F(SlowPlayers, AQuestionOfTheSessionEndsWithIt) {
    host.answers = {{"Connection Successful", MsgResult::OK},
                    {"Remote Connection Closed", MsgResult::OK},
                    {"Reconnect", MsgResult::Yes},
                    {"Play Again?", MsgResult::Yes}};
    client.answers = {{"Play Again?", MsgResult::Yes},        {"Winsock Error 10054", MsgResult::OK},
                      {"Winsock Error 10061", MsgResult::OK}, {"Reconnect", MsgResult::Yes},
                      {"Connection Successful", MsgResult::OK}};
    ASSERT_TRUE(connect());
    ASSERT_TRUE(deal());
    bool closedWithItsSession = false;
    beforeAnswer = [&](Side& side, const MsgBox& box) {
        if (&side != &host || box.title != "Play Again?") return;
        world.network().drop(false);
        side.host.waitUntil([&] { return side.host.boxEnded() || host.boxes("Connection Successful") == 2; });
        closedWithItsSession = side.host.boxEnded();
    };
    ASSERT_TRUE(playUntil([&] { return host.boxes("Connection Successful") == 2 && !host.host.waiting(); }));
    world.advance(2000);
    EXPECT_TRUE(closedWithItsSession);
    EXPECT_EQ(host.f().connectionStatus, nullptr) << "no new client is asked for a rematch";
    EXPECT_EQ(host.f().g.gGameInProgress, 0);
    ASSERT_TRUE(deal());
}

struct StaleTable {
    const char* name;
    bool viaSetup;  // Setup, OK, "Reset Game" answered No; otherwise a reconnect after a failure
};

class StaleTableOnReconnect : public NetFixture, public ::testing::WithParamInterface<StaleTable> {};

// The client connects again with its last deal still on the table: the host is told of the loss,
// the table is cleared, and the client takes its host's options and deal as at any start of a
// session.
TEST_P(StaleTableOnReconnect, IsClearedAndTheClientTakesTheHostsDeal) {
    host.answers = {{"Connection Successful", MsgResult::OK},
                    {"Remote Connection Closed", MsgResult::OK},
                    {"Reconnect", MsgResult::Yes},
                    {"Out of Step", MsgResult::OK}};
    client.answers = {{"Reset Game", MsgResult::No},        {"Winsock Error 10054", MsgResult::OK},
                      {"Winsock Error 10061", MsgResult::OK}, {"Reconnect", MsgResult::Yes},
                      {"Out of Step", MsgResult::OK}};
    ASSERT_TRUE(connect());
    ASSERT_TRUE(deal());
    if (GetParam().viaSetup) act(client, [&] { client.f().mnuSetup_Click(); });
    else world.network().drop(false);
    ASSERT_TRUE(runUntil([&] { return host.boxes("Connection Successful") == 2; }));
    world.advance(1000);  // the host's options arrive
    EXPECT_TRUE(host.shown("Your opponent has just terminated the network connection."));
    EXPECT_TRUE(client.shown("Do you want to try and reconnect?"));
    EXPECT_EQ(client.f().g.gGameInProgress, 0);
    EXPECT_FALSE(client.f().ctl.imgPCard[0].hasPicture());
    EXPECT_EQ(host.boxes("Out of Step") + client.boxes("Out of Step"), 0);
    ASSERT_TRUE(deal());
    EXPECT_EQ(client.f().m.mDealSeed, host.f().m.mDealSeed);
}

INSTANTIATE_TEST_SUITE_P(BothPaths, StaleTableOnReconnect,
                         ::testing::Values(StaleTable{"SetupResetAnsweredNo", true},
                                           StaleTable{"ReconnectAfterAFailure", false}),
                         [](const auto& info) { return std::string(info.param.name); });

// A send made while another waits for its bytes to leave (from a handler that the wait lets
// run) leaves with it, and the socket tells once for both: each wait still ends.
TEST_F(NetFixture, TwoSendsThatLeaveTogetherEachEndTheirWait) {
    ASSERT_TRUE(connect());
    const std::int64_t start = world.now();
    bool sent = false;
    act(client, [&] {
        client.host.post([&] { client.f().sendToPeer("CHAT,inner"); });
        client.f().sendToPeer("CHAT,outer");
        sent = true;
    });
    ASSERT_TRUE(runUntil([&] { return sent; }));
    EXPECT_LT(world.now() - start, 1000);
    EXPECT_FALSE(client.shown("The connected computer took too long to respond."));
}

}  // namespace
}  // namespace petal::test
