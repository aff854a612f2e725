// What the players of a network game are told beyond the bare protocol: where the host can be
// reached, what a closed score card waits for, and the question before Setup drops an opponent.
#include "NetFixture.h"
#include "net/FrmConnectionStatus.h"
#include "scoring/FrmScoreCard.h"
#include "shell/FrmSetup.h"

namespace petal::test {
namespace {

TEST_F(NetFixture, TheHostsWaitTellsWhereItCanBeReached) {
    act(host, [&] { host.f().mnuSetup_Click(); });
    ASSERT_TRUE(runUntil([&] { return host.f().connectionStatus != nullptr; }));
    EXPECT_EQ(host.f().connectionStatus->Label2, "Your opponent can join at 192.0.2.10 or 2001:db8::10, port 4800.");
}

class ScoreCardClosedFirst : public NetFixture, public ::testing::WithParamInterface<bool> {};

// Whoever closes the card first is told what the next round waits for; the other is not.
TEST_P(ScoreCardClosedFirst, IsToldWhatTheNextRoundWaitsFor) {
    const bool hostFirst = GetParam();
    Side& first = hostFirst ? host : client;
    Side& second = hostFirst ? client : host;
    hostOptions(1, 2, true);
    ASSERT_TRUE(connect());
    ASSERT_TRUE(deal());
    std::map<Side*, std::vector<std::string>> waits;
    for (Side* side : {&host, &client}) {
        side->onForm = [&, side](Form& form) {
            if (auto* status = dynamic_cast<FrmConnectionStatus*>(&form)) {
                waits[side].push_back(status->Label1);
                side->host.waitUntil([status] { return !status->loaded(); });
            } else if (auto* card = dynamic_cast<FrmScoreCard*>(&form)) {
                if (side == &second) side->host.waitUntil([&] { return !waits[&first].empty(); });
                card->cmdOK_Click();
            }
        };
    }
    const int dealt = host.ends.deals;
    ASSERT_TRUE(playDeal());
    ASSERT_TRUE(runUntil([&] { return host.ends.deals != dealt && !client.f().connectionStatus; }));
    EXPECT_EQ(waits[&first], std::vector<std::string>{hostFirst ? "Waiting for your opponent to close the score card."
                                                                : "Waiting for your host to start the next round."});
    EXPECT_TRUE(waits[&second].empty());
}

INSTANTIATE_TEST_SUITE_P(EitherSide, ScoreCardClosedFirst, ::testing::Bool(),
                         [](const auto& info) { return info.param ? "Host" : "Client"; });

// Setup's OK would drop a connected opponent: the host is asked first, and No keeps the dialog.
TEST_F(NetFixture, TheHostIsAskedBeforeSetupDropsItsOpponent) {
    ASSERT_TRUE(connect());
    std::vector<MsgResult> replies = {MsgResult::No, MsgResult::Yes};
    host.answers.erase("Opponent Connected");
    host.host.onMsgBox = [&, original = host.host.onMsgBox](const MsgBox& box) {
        if (box.title != "Opponent Connected") return original(box);
        const MsgResult reply = replies.front();
        replies.erase(replies.begin());
        return reply;
    };
    client.answers["Remote Connection Closed"] = MsgResult::OK;
    host.onForm = [&, others = host.onForm](Form& form) {
        auto* setup = dynamic_cast<FrmSetup*>(&form);
        if (!setup) return others(form);
        setup->cmdOK_Click();
        EXPECT_TRUE(setup->loaded()) << "No keeps the dialog";
        EXPECT_EQ(host.f().socketState(), Socket::sckConnected);
        setup->cmdOK_Click();
    };
    act(host, [&] { host.f().mnuSetup_Click(); });
    EXPECT_TRUE(replies.empty());
    ASSERT_TRUE(runUntil([&] { return client.f().g.gPlayMode == 0; }));
    EXPECT_TRUE(client.shown("Your host has just terminated the network connection."));
}

}  // namespace
}  // namespace petal::test
