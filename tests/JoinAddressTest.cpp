// What a player types to join: names and addresses of any length, IPv6 with or without
// brackets, an optional port, and text that is none of these.
#include "GameFixture.h"
#include "net/JoinAddress.h"
#include "shell/CommandLine.h"
#include "shell/FrmSetup.h"

namespace petal::test {
namespace {

TEST(JoinAddress, ReadsANameOrAnAddressAndAnOptionalPort) {
    struct Case {
        const char* text;
        std::optional<JoinAddress> read;
    };
    const Case cases[] = {
        {"nosuchhost.invalid", JoinAddress{"nosuchhost.invalid", 0}},
        {" 192.0.2.7:5000 ", JoinAddress{"192.0.2.7", 5000}},
        {"2001:db8::7", JoinAddress{"2001:db8::7", 0}},
        {"[2001:db8::7]", JoinAddress{"2001:db8::7", 0}},
        {"[fe80::1%eth0]:65535", JoinAddress{"fe80::1%eth0", 65535}},
        {"host:65536", std::nullopt},
        {"host:0", std::nullopt},
        {":5000", std::nullopt},
        {"[2001:db8::7]5000", std::nullopt},
        {"192.0.2.999", std::nullopt},
        {"[192.0.2.7]", std::nullopt},
        {"2001:db8::7::1", std::nullopt},
        {"host!.example", std::nullopt},
        {"a..example", std::nullopt},
        {"under_score.example.:80", JoinAddress{"under_score.example.", 80}},
    };
    for (const Case& c : cases) {
        const std::optional<JoinAddress> read = parseJoinAddress(c.text);
        ASSERT_EQ(read.has_value(), c.read.has_value()) << c.text;
        if (!read) continue;
        EXPECT_EQ(read->host, c.read->host) << c.text;
        EXPECT_EQ(read->port, c.read->port) << c.text;
        if (read->port == 0) continue;
        // What the host's wait offers to copy reads back as the same place.
        const std::optional<JoinAddress> copied = parseJoinAddress(joinAddressText(read->host, read->port, 4800));
        ASSERT_TRUE(copied) << c.text;
        EXPECT_EQ(copied->host, read->host) << c.text;
        EXPECT_EQ(copied->port, read->port) << c.text;
    }
}

// Each line either starts a session or is refused with a reason, never half of both.
TEST(CommandLine, StartsAHostOrAJoinOrRefusesWithAReason) {
    struct Case {
        std::vector<std::string> args;
        int playMode;
        const char* address;
        int port;
        bool refused;
    };
    const Case cases[] = {
        {{}, 0, "", 0, false},
        {{"--host"}, 1, "", 0, false},
        {{"--port=5000", "--join", "2001:db8::7"}, 2, "2001:db8::7", 5000, false},
        {{"--join=[::1]:5001"}, 2, "[::1]:5001", 0, false},
        {{"--join", "two words"}, 2, "two words", 0, true},
        {{"--host", "--join", "x"}, 1, "", 0, true},
        {{"--host", "--port", "65536"}, 1, "", 0, true},
        {{"--port", "5000"}, 0, "", 5000, true},
        {{"--hots"}, 0, "", 0, true},
    };
    for (const Case& c : cases) {
        const CommandLine line = parseCommandLine(c.args);
        const std::string text = testing::PrintToString(c.args);
        EXPECT_EQ(!line.error.empty(), c.refused) << text << ": " << line.error;
        if (c.refused) continue;
        EXPECT_EQ(line.playMode, c.playMode) << text;
        EXPECT_EQ(line.address, c.address) << text;
        EXPECT_EQ(line.port, c.port) << text;
    }
    EXPECT_TRUE(parseCommandLine({"--host", "--help"}).help);
}

class JoinBox : public GameFixture {};

// The box keeps the whole name (it held 15 characters once), and the connection goes to the
// host and port that it names, or to the game's port.
TEST_F(JoinBox, ConnectsToTheNameAndPortItHolds) {
    const std::string name = "a-rather-long-name-for-a-host.nosuchhost.invalid";
    for (const auto& [typed, port] : {std::pair{name + ":5000", 5000}, std::pair{name, 4800}}) {
        host->onForm = [&](Form& form) {
            auto& setup = dynamic_cast<FrmSetup&>(form);
            setup.selectGame(2);
            setup.setText(setup.txtHostIP, typed);
            setup.cmdOK_Click();
        };
        f->mnuSetup_Click();
        EXPECT_EQ(program->g.gHostIP, typed);
        EXPECT_EQ(f->tcpMultiPlayer->RemoteHost, name);
        EXPECT_EQ(f->tcpMultiPlayer->RemotePort, port);
    }
}

}  // namespace
}  // namespace petal::test
