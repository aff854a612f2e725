// What the players of a network game are told beyond the bare protocol: where the host can be
// reached, and the question before Setup drops an opponent.
#include "NetFixture.h"
#include "net/Connection.h"
#include "net/FrmConnectionStatus.h"
#include "platform/PortMapper.h"
#include "shell/FrmSetup.h"

namespace petal::test {
namespace {

// A router scripted by the test: its answer is whatever the test last set.
class ScriptedRouter : public PortMapper {
public:
    ScriptedRouter(const RouterPort& answer, int& standing) : answer_(answer), standing_(standing) { ++standing_; }
    ~ScriptedRouter() override { --standing_; }
    void open(int port) override { opened = port; }
    RouterPort state() const override { return answer_; }
    int opened = 0;

private:
    const RouterPort& answer_;
    int& standing_;
};

// The wait lists every address with whom it serves, the router's first, and says in words what
// the router answered; the mapping stands exactly while the host hosts.
TEST_F(NetFixture, TheHostsWaitTellsWhereAFriendCanJoin) {
    RouterPort answer;
    int standing = 0;
    ScriptedRouter* router = nullptr;
    host.host.addresses = {"192.168.1.5", "fd00::5", "2001:db8::10", "100.64.0.9"};
    host.host.portMappers = [&] {
        auto made = std::make_unique<ScriptedRouter>(answer, standing);
        router = made.get();
        return made;
    };
    host.f().options.setFlag(Connection::kRouterOption, true);
    act(host, [&] { host.f().mnuSetup_Click(); });
    ASSERT_TRUE(runUntil([&] { return host.f().connectionStatus != nullptr; }));
    FrmConnectionStatus& wait = *host.f().connectionStatus;
    ASSERT_EQ(standing, 1);
    EXPECT_EQ(router->opened, 4800);
    const std::string helps = " A friend on the internet can still join over IPv6, or through a port forwarded to "
                              "this computer by hand or by your provider.";
    const std::pair<RouterPort, std::string> answers[] = {
        {{RouterPort::Outcome::Asking, "", ""}, "Asking your router to open port 4800 for a friend on the internet..."},
        {{RouterPort::Outcome::NoRouter, "", ""}, "No router answered the request to open port 4800." + helps},
        {{RouterPort::Outcome::Refused, "198.51.100.7", "ConflictInMappingEntry"},
         "Your router refused to open port 4800 (ConflictInMappingEntry)." + helps},
        {{RouterPort::Outcome::Unroutable, "100.64.3.1", ""},
         "Your router's own address on the internet, 100.64.3.1, is private or shared (a carrier's NAT), so opening a "
         "port on it cannot help." + helps},
        {{RouterPort::Outcome::Mapped, "198.51.100.7", ""}, "Your friend can join at 198.51.100.7, port 4800."},
    };
    for (const auto& [routerSaid, told] : answers) {
        answer = routerSaid;
        EXPECT_TRUE(runUntil([&] { return wait.Label2 == told; }, 2000)) << wait.Label2;
    }
    std::vector<std::string> places;
    for (const JoinPlace& place : wait.joinPlaces) places.push_back(place.address + " " + place.what);
    EXPECT_EQ(places, (std::vector<std::string>{"198.51.100.7 on the internet, through your router",
                                                "2001:db8::10 on the internet, over IPv6", "192.168.1.5 on your own network",
                                                "fd00::5 on your own network", "100.64.0.9 on your own network"}));
    host.answers["Cancel Connection"] = MsgResult::Yes;
    act(host, [&] { wait.cmdCancel_Click(); });
    EXPECT_EQ(standing, 0);
}

// Setup's OK would drop a connected opponent: the host is asked first, and No keeps the dialog.
TEST_F(NetFixture, TheHostIsAskedBeforeSetupDropsItsOpponent) {
    ASSERT_TRUE(connect());
    const char* question =
        "Your opponent is connected.  Saving the changes you made will end the connection.  Do you want to proceed?";
    host.host.expectMsgBox(question, "Opponent Connected", MsgResult::No);
    host.host.expectMsgBox(question, "Opponent Connected", MsgResult::Yes);
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
    EXPECT_EQ(host.host.pendingAnswers(), 0u);
    ASSERT_TRUE(runUntil([&] { return client.f().g.gPlayMode == 0; }));
    EXPECT_TRUE(client.shown("Your host has just terminated the network connection."));
}

}  // namespace
}  // namespace petal::test
