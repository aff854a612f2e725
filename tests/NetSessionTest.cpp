// Two programs over the simulated network: the session's set-up, the deal, the rematch, the
// restart, the score cards' meeting, and chat, each as the two players would see them.
#include <algorithm>

#include "NetFixture.h"
#include "net/FrmConnectionStatus.h"
#include "platform/sim/SimNetwork.h"
#include "scoring/FrmScoreCard.h"

namespace petal::test {
namespace {

class NetSession : public NetFixture {};

TEST_F(NetSession, TheClientTakesTheHostsOptionsAndBothHoldTheSameDeal) {
    hostOptions(1, 3, false);
    ASSERT_TRUE(connect());
    FrmMain& h = host.f();
    FrmMain& c = client.f();
    EXPECT_EQ(h.Caption, "Petalgarden (Server)");
    EXPECT_EQ(c.Caption, "Petalgarden (Client)");
    EXPECT_EQ(c.g.gGameType, 1);
    EXPECT_EQ(c.g.gRounds, 3);
    EXPECT_FALSE(c.g.gUseYaku);
    c.syncMenu();
    EXPECT_TRUE(c.menu.mnuVScore.Enabled) << "the tournament's score card";
    EXPECT_EQ(host.titles(), std::vector<std::string>{"Connection Successful"});
    EXPECT_EQ(client.f().connectionStatus->Label1, "Waiting for your host to start the game");

    ASSERT_TRUE(deal());
    EXPECT_EQ(h.m.mDealSeed, c.m.mDealSeed);
    for (int p = 0; p < 48; ++p) EXPECT_EQ(h.m.mCards[p].Index, c.m.mCards[p].Index);
    EXPECT_EQ(h.m.mTurn + c.m.mTurn, 1) << "one side leads";
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(c.ctl.imgPCard[i].Tag, std::to_string(8 + i)) << "the client holds the second hand";
        EXPECT_EQ(c.ctl.imgCCard[i].Tag, std::to_string(i));
        EXPECT_EQ(c.ctl.imgTCard[i].Tag, h.ctl.imgTCard[i].Tag);
    }
    EXPECT_EQ(h.menu.mnuVChat.Enabled, h.m.mTurn == 0) << "chat is open to the side on turn";
    EXPECT_EQ(c.menu.mnuVChat.Enabled, c.m.mTurn == 0);
}

// A rematch is the host's to deal; a client that deals too still ends on the host's deck.
TEST_F(NetSession, DealsThatCrossInARematchEndOnTheHostsDeck) {
    host.answers["Play Again?"] = client.answers["Play Again?"] = MsgResult::Yes;
    ASSERT_TRUE(connect());
    ASSERT_TRUE(deal());
    const std::string first = host.f().m.mDealSeed;
    world.advance(1000);  // a new second, a new seed
    ASSERT_TRUE(playDeal());
    // The host deals the rematch; before its DEAL arrives, the client deals too, as a copy of
    // the game that deals after every rematch would.
    const int dealt = host.ends.deals;
    ASSERT_TRUE(runUntil([&] { return host.ends.deals != dealt; }));
    EXPECT_TRUE(client.f().m.mClientDealText.empty()) << "the client never deals by itself";
    act(client, [&] { client.f().dealer.DealCards(); });
    EXPECT_FALSE(client.f().m.mClientDealText.empty());
    world.advance(2000);
    EXPECT_NE(host.f().m.mDealSeed, first);
    EXPECT_EQ(client.f().m.mDealSeed, host.f().m.mDealSeed);
    for (int p = 0; p < 48; ++p) EXPECT_EQ(host.f().m.mCards[p].Index, client.f().m.mCards[p].Index);
    EXPECT_EQ(host.f().m.mTurn + client.f().m.mTurn, 1);
}

TEST_F(NetSession, TheHostsRestartClearsBothTables) {
    host.answers["Game In Progress"] = MsgResult::Yes;
    client.answers["Session Restarted"] = MsgResult::OK;
    ASSERT_TRUE(connect());
    ASSERT_TRUE(deal());
    act(host, [&] { host.f().dealer.imgDeck_Click(); });
    EXPECT_TRUE(host.shown("Do you want to restart this session with your opponent?"));
    ASSERT_TRUE(runUntil([&] { return client.f().g.gGameInProgress == 0; }));
    for (Side* side : {&host, &client}) {
        EXPECT_EQ(side->f().g.gGameInProgress, 0);
        EXPECT_FALSE(side->f().ctl.imgPCard[0].hasPicture());
        EXPECT_FALSE(side->f().tmrComputer.Enabled());
    }
    EXPECT_EQ(host.f().m.mTurn, 0);
    ASSERT_TRUE(runUntil([&] { return client.boxes("Session Restarted") == 1; })) << "the client is told why";
}

// The side that led opens its card at once; the other opens its own once it hears of that, and
// closing it first is told what the next round waits for; the next round comes when both are closed.
class ScoreCardMeeting : public NetFixture, public ::testing::WithParamInterface<bool> {};

TEST_P(ScoreCardMeeting, TheCardsMeetAndTheNextRoundWaitsForBoth) {
    const bool hostLeads = GetParam();
    hostOptions(1, 2, true);
    ASSERT_TRUE(connect());
    act(host, [&] { host.f().m.mTurn = hostLeads ? 0 : 1; });
    ASSERT_TRUE(deal());
    Side& leader = hostLeads ? host : client;
    Side& other = hostLeads ? client : host;
    std::vector<std::string> order;
    std::map<Side*, std::vector<std::string>> waits;
    const int dealt = host.ends.deals;
    // The leader keeps its card open for three seconds.
    leader.onForm = [&, others = leader.onForm](Form& form) {
        if (auto* status = dynamic_cast<FrmConnectionStatus*>(&form)) waits[&leader].push_back(status->Label1);
        if (!dynamic_cast<FrmScoreCard*>(&form)) return others(form);
        auto& card = dynamic_cast<FrmScoreCard&>(form);
        order.push_back("leader opens");
        const std::int64_t until = world.now() + 3000;
        leader.host.waitUntil([&] { return world.now() >= until; });
        order.push_back("leader closes");
        EXPECT_EQ(host.ends.deals, dealt) << "no round is dealt while a card stands";
        card.cmdOK_Click();
    };
    other.onForm = [&, others = other.onForm](Form& form) {
        if (auto* status = dynamic_cast<FrmConnectionStatus*>(&form)) waits[&other].push_back(status->Label1);
        if (!dynamic_cast<FrmScoreCard*>(&form)) return others(form);
        order.push_back("other opens");
        dynamic_cast<FrmScoreCard&>(form).cmdOK_Click();
    };
    ASSERT_TRUE(playDeal());
    ASSERT_TRUE(runUntil([&] { return host.ends.deals != dealt; }));
    ASSERT_TRUE(runUntil([&] { return client.f().m.mDealSeed == host.f().m.mDealSeed && !client.f().connectionStatus; }));
    EXPECT_EQ(order, (std::vector<std::string>{"leader opens", "other opens", "leader closes"}));
    EXPECT_EQ(waits[&other], std::vector<std::string>{hostLeads ? "Waiting for your host to start the next round."
                                                                 : "Waiting for your opponent to close the score card."});
    EXPECT_TRUE(waits[&leader].empty());
    EXPECT_EQ(host.f().g.gRoundScores[0][1], client.f().g.gRoundScores[1][1]);
    EXPECT_EQ(host.f().m.mRoundNo, 1);
}

INSTANTIATE_TEST_SUITE_P(EitherSideLeads, ScoreCardMeeting, ::testing::Bool(),
                         [](const auto& info) { return info.param ? "HostLeads" : "ClientLeads"; });

}  // namespace
}  // namespace petal::test
