// Two headless players over real TCP on this machine, the host speaking Japanese and the client
// English: the program's own socket code carries whole deals, and the two traces are the same
// events seen from the two sides. (The mirroring of every kind of game is NetRun's, on the
// simulated network.)
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <map>

#include "GameFixture.h"
#include "ToolProcess.h"
#include "TraceFields.h"

namespace petal::test {
namespace {

// The host's event as the client sees it: the sides, the lead and the scores swapped.
std::map<std::string, std::string> mirrored(std::map<std::string, std::string> e) {
    const auto flip = [](const std::string& v) { return std::to_string(1 - std::stoi(v)); };
    if (e.count("side")) e["side"] = flip(e["side"]);
    if (e.count("lead")) e["lead"] = flip(e["lead"]);
    if (e.count("p")) std::swap(e["p"], e["c"]), std::swap(e["pyaku"], e["cyaku"]);
    return e;
}

std::vector<std::string> events(const std::filesystem::path& file) {
    std::ifstream in(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        if (line.find("\"ev\":\"summary\"") == std::string::npos) lines.push_back(line);
    return lines;
}

TEST(TcpPair, TwoPlayersOfTwoLanguagesOverLoopbackPlayWholeGamesThatMirror) {
    TempDir dir;
    const std::string port = std::to_string(freePort());
    const pid_t host = startProgram(PETAL_SIM, {"host", "--port", port, "--trace", "--language", "ja", "--deals", "3"},
                                    dir.path() / "host.txt");
    ASSERT_TRUE(listening(std::stoi(port), std::chrono::seconds(10)));
    const pid_t client = startProgram(
        PETAL_SIM, {"join", "127.0.0.1", "--port", port, "--deals", "3", "--trace", "--policy", "random:9"},
        dir.path() / "client.txt");
    EXPECT_EQ(finishProgram(client, std::chrono::seconds(60)), 0);
    EXPECT_EQ(finishProgram(host, std::chrono::seconds(60)), 0);
    const auto hostEvents = events(dir.path() / "host.txt");
    const auto clientEvents = events(dir.path() / "client.txt");
    ASSERT_EQ(hostEvents.size(), clientEvents.size());
    int ends = 0;
    for (std::size_t i = 0; i < hostEvents.size(); ++i) {
        EXPECT_EQ(mirrored(traceFields(hostEvents[i])), traceFields(clientEvents[i])) << hostEvents[i];
        ends += hostEvents[i].find("\"ev\":\"end\"") != std::string::npos;
    }
    EXPECT_EQ(ends, 3);
}

}  // namespace
}  // namespace petal::test
