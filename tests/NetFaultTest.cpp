// What the survivor of a lost connection sees in each phase of a game, the socket's errors,
// the two cancel questions, and messages that no copy of the game would send.
#include "NetFixture.h"
#include "net/FrmConnectionStatus.h"
#include "platform/Socket.h"
#include "platform/sim/SimNetwork.h"
#include "scoring/FrmScoreCard.h"

namespace petal::test {
namespace {

enum class Phase { WaitingForTheDeal, OpponentsTurn, FlippedCardWaits, ScoreCardOpen, RematchQuestion };

struct Loss {
    Phase phase;
    bool hostSurvives;
};

std::string lossName(const Loss& loss) {
    static const char* names[] = {"WaitingForTheDeal", "OpponentsTurn", "FlippedCardWaits", "ScoreCardOpen",
                                  "RematchQuestion"};
    return std::string(names[static_cast<int>(loss.phase)]) + (loss.hostSurvives ? "HostSurvives" : "ClientSurvives");
}

class PeerLost : public NetFixture, public ::testing::WithParamInterface<Loss> {};

TEST_P(PeerLost, TheSurvivorIsToldAndPlaysAlone) {
    const Loss loss = GetParam();
    Side& survivor = loss.hostSurvives ? host : client;
    Side& leaver = loss.hostSurvives ? client : host;
    survivor.answers["Remote Connection Closed"] = MsgResult::OK;
    survivor.answers["Reconnect"] = MsgResult::No;
    if (loss.phase == Phase::ScoreCardOpen) hostOptions(1, 3, true);
    ASSERT_TRUE(connect());
    if (loss.phase != Phase::WaitingForTheDeal) {
        // The leaver leads, so that the survivor waits for its moves.
        act(host, [&] { host.f().m.mTurn = loss.hostSurvives ? 1 : 0; });
        ASSERT_TRUE(deal());
    }
    if (loss.phase == Phase::FlippedCardWaits) {
        ASSERT_TRUE(playUntil([&] {
            return survivor.f().ctl.shpFlipCard.Visible && survivor.f().m.mTurn == 0 && !survivor.host.waiting();
        }));
    }
    if (loss.phase == Phase::ScoreCardOpen || loss.phase == Phase::RematchQuestion) {
        // The leaver goes while the survivor's card, or its question, stands.
        survivor.onForm = [&](Form& form) {
            if (!dynamic_cast<FrmScoreCard*>(&form)) return;
            leaver.host.endProgram();
            survivor.host.waitUntil([&] { return !form.loaded() || survivor.f().g.gPlayMode == 0; });
        };
        leaver.onForm = [](Form& form) { form.Unload(); };
        leaver.answers["Play Again?"] = MsgResult::No;
        survivor.host.onMsgBox = [&, original = survivor.host.onMsgBox](const MsgBox& box) {
            if (box.title != "Play Again?") return original(box);
            leaver.host.endProgram();
            survivor.host.waitUntil([&] { return survivor.f().g.gPlayMode == 0; });
            return MsgResult::Yes;
        };
        ASSERT_TRUE(playUntil([&] { return survivor.f().g.gPlayMode == 0; }));
    } else {
        act(leaver, [&leaver] { leaver.host.endProgram(); });
    }
    ASSERT_TRUE(runUntil([&] { return survivor.f().g.gPlayMode == 0 && !survivor.host.waiting(); }));
    FrmMain& s = survivor.f();
    EXPECT_TRUE(survivor.shown(loss.hostSurvives ? "Your opponent has just terminated the network connection."
                                                 : "Your host has just terminated the network connection."));
    EXPECT_EQ(s.socketState(), 0);
    EXPECT_EQ(s.scoreCard, nullptr);
    if (loss.phase != Phase::RematchQuestion) {
        EXPECT_EQ(s.g.gGameInProgress, 0);
        EXPECT_FALSE(s.ctl.imgFlipCard.hasPicture());
    }
}

INSTANTIATE_TEST_SUITE_P(
    EachPhase, PeerLost,
    ::testing::Values(Loss{Phase::WaitingForTheDeal, false}, Loss{Phase::WaitingForTheDeal, true},
                      Loss{Phase::OpponentsTurn, false}, Loss{Phase::OpponentsTurn, true},
                      Loss{Phase::FlippedCardWaits, false}, Loss{Phase::FlippedCardWaits, true},
                      Loss{Phase::ScoreCardOpen, false}, Loss{Phase::ScoreCardOpen, true},
                      Loss{Phase::RematchQuestion, false}, Loss{Phase::RematchQuestion, true}),
    [](const auto& info) { return lossName(info.param); });

class NetFault : public NetFixture {};

TEST_F(NetFault, AResetConnectionIsAnErrorOnOneSideAndALossOnTheOther) {
    host.answers["Winsock Error 10054"] = MsgResult::OK;
    client.answers["Remote Connection Closed"] = MsgResult::OK;
    ASSERT_TRUE(connect());
    ASSERT_TRUE(deal());
    world.network().drop(true);
    ASSERT_TRUE(runUntil([&] { return client.f().g.gPlayMode == 0; }));
    world.advance(1000);
    // The host is told the socket's own words and listens no more; it asks nothing.
    EXPECT_TRUE(host.shown("Connection reset by peer"));
    EXPECT_EQ(host.f().socketState(), 0);
    EXPECT_EQ(host.f().g.gPlayMode, 1);
    EXPECT_EQ(host.boxes("Reconnect"), 0);
    EXPECT_TRUE(client.shown("Your host has just terminated the network connection."));
}

// A peer that comes and goes between two polls of a host that listens again is still seen.
TEST_F(NetFault, APeerThatComesAndGoesBetweenTwoPollsIsSeen) {
    host.answers["Remote Connection Closed"] = MsgResult::OK;
    host.answers["Reconnect"] = MsgResult::Yes;
    act(host, [&] { host.f().mnuSetup_Click(); });
    RawPeer raw(world);
    const auto comeAndGo = [&] {
        world.act(raw.host, [&] {
            raw.socket->RemoteHost = "127.0.0.1";
            raw.socket->RemotePort = 4800;
            raw.socket->Connect();
        });
        ASSERT_TRUE(runUntil([&] { return raw.socket->State() == Socket::sckConnected; }));
        world.act(raw.host, [&] { raw.socket->Close(); });
    };
    ASSERT_TRUE(runUntil([&] { return host.f().socketState() == Socket::sckListening; }));
    comeAndGo();
    ASSERT_TRUE(runUntil([&] { return host.boxes("Remote Connection Closed") == 1 && host.f().socketState() == Socket::sckListening; }));
    comeAndGo();  // at once, well inside one poll
    EXPECT_TRUE(runUntil([&] { return host.boxes("Remote Connection Closed") == 2; }, 5000));
}

// Cancel in a wait of the network asks first; No keeps the wait, Yes ends the session.
TEST_F(NetFault, TheHostsCancelQuestionLetsItStayOrStop) {
    const char* question =
        "Your opponent will not be able to connect to your computer if you proceed.  Do you wish to proceed?";
    host.host.expectMsgBox(question, "Cancel Connection", MsgResult::No);
    host.host.expectMsgBox(question, "Cancel Connection", MsgResult::Yes);
    // The host's wait: cancelled once (No: it stays and listens), then again (Yes).
    const auto setUp = host.onForm;
    host.onForm = [&](Form& form) {
        auto* status = dynamic_cast<FrmConnectionStatus*>(&form);
        if (!status) return setUp(form);
        status->cmdCancel_Click();
        EXPECT_TRUE(status->loaded());
        EXPECT_EQ(host.f().socketState(), 2);
        status->cmdCancel_Click();
    };
    act(host, [&] { host.f().mnuSetup_Click(); });
    ASSERT_TRUE(runUntil([&] { return host.f().g.gPlayMode == 0; }));
    EXPECT_EQ(host.host.pendingAnswers(), 0u);
    EXPECT_EQ(host.f().socketState(), 0);
    EXPECT_EQ(host.f().g.gPlayMode, 0);
    EXPECT_EQ(host.f().Caption, "Petalgarden");
}

}  // namespace
}  // namespace petal::test
