// Two copies of the program itself, each in a folder of its own, over real loopback TCP, with a
// scripted user each (petalgarden-twin) who answers every box and form after 0 to 300 ms: whole
// sessions through every answer of the end-of-deal, reconnect, score-card, restart and close
// questions, on each side and in each order, with chat. Each copy must end in a designed state:
// its exit status 0, its user's own end, no box of a fault, and every chat line as it was typed.
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <set>
#include <sys/wait.h>
#include <thread>

#include "GameFixture.h"
#include "ToolProcess.h"

namespace petal::test {
namespace {

struct Session {
    const char* name;
    const char* settings;  // the host's GARDENIA.ini: game type, rounds, yaku, play mode
    std::vector<std::string> host, client;
    std::vector<std::string> rejoin;  // a second client, started once the first has gone
    const char* toldDeclined;         // "host" or "client": must see "Rematch Declined"
};

std::vector<std::string> lines(const std::filesystem::path& file) {
    std::ifstream in(file);
    std::vector<std::string> all;
    for (std::string line; std::getline(in, line);) all.push_back(line.substr(0, line.rfind("  @")));
    return all;
}

struct Copy {
    const Session* session;
    std::string role;
    std::filesystem::path folder;
    pid_t pid = 0;
    int status = -2;  // -2 running, -1 killed at the limit
};

// A copy in its role's folder under its session's, its user's random numbers from `seed`.
Copy start(const std::filesystem::path& sessions, int seed, const Session& s, const std::string& role, int port,
           std::vector<std::string> args) {
    const std::filesystem::path session = sessions / s.name;
    Copy copy{&s, role, session / role};
    std::filesystem::create_directories(copy.folder);
    std::ofstream(copy.folder / "petalgarden-options.ini") << "sound=off\nanimations=off\n";
    if (role == "host" && s.settings) std::ofstream(copy.folder / "GARDENIA.ini") << s.settings;
    const std::vector<std::string> mode = role == "host" ? std::vector<std::string>{"--host"}
                                                         : std::vector<std::string>{"--join", "127.0.0.1"};
    args.insert(args.begin(), mode.begin(), mode.end());
    const std::string peer = (session / (role == "host" ? "client" : "host")).string();
    for (const std::string& a : {std::string("--port"), std::to_string(port), std::string("--folder"),
                                 copy.folder.string(), std::string("--peer"), peer, std::string("--seed"),
                                 std::to_string(seed), std::string("--speed"), std::string("25")})
        args.push_back(a);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);  // no display is needed, nor taken if there is one
    copy.pid = startProgram(PETAL_TWIN, args, copy.folder / "out.txt", copy.folder / "err.txt");
    return copy;
}

// What a copy's user logged, with whatever the copy wrote on its error output.
std::string told(const Copy& copy, const std::vector<std::string>& log) {
    std::string text;
    for (const std::string& line : log) text += "\n  " + line;
    std::ifstream errors(copy.folder / "err.txt");
    for (std::string line; std::getline(errors, line);)
        if (line.find("propagateSizeHints") == std::string::npos && line.find("XDG_RUNTIME") == std::string::npos)
            text += "\n  stderr: " + line;
    return text;
}

void check(const Session& s, const std::vector<Copy>& copies) {
    std::map<std::string, std::vector<std::string>> logs;
    for (const Copy& copy : copies) {
        if (copy.session != &s) continue;
        const std::vector<std::string>& log = logs[copy.role] = lines(copy.folder / "twin.log");
        SCOPED_TRACE(std::string(s.name) + ", " + copy.role + ":" + told(copy, log));
        EXPECT_EQ(copy.status, 0) << "-1: still running after the limit";
        const auto has = [&](const std::string& prefix) {
            return std::any_of(log.begin(), log.end(), [&](const std::string& line) { return line.rfind(prefix, 0) == 0; });
        };
        EXPECT_TRUE(has("end ")) << "the user ended the program";
        EXPECT_FALSE(has("failed ")) << "the user met something unforeseen";
        EXPECT_FALSE(has("box Out of Step") || has("box Time Out"));
        if (s.toldDeclined && copy.role == s.toldDeclined) {
            EXPECT_TRUE(has("box Rematch Declined"));
        }
    }
    // A line that came is one that the other side typed, byte for byte.
    std::set<std::string> sent;
    for (const auto& [role, log] : logs)
        for (const std::string& line : log)
            if (line.rfind("sent ", 0) == 0) sent.insert(line.substr(5));
    for (const auto& [role, log] : logs)
        for (const std::string& line : log)
            if (line.rfind("recv ", 0) == 0) {
                EXPECT_TRUE(sent.count(line.substr(5))) << s.name << ", " << role << " got \"" << line << "\"";
            }
}

const char* const kTournament2 = "1\r\n2\r\n-1\r\n0\r\n";

const Session kSessions[] = {
    {"the host declines while the client waits", nullptr, {"--again", "^N"}, {"--again", "Y"}, {}, "client"},
    {"the client declines while the host waits", nullptr, {"--again", "Y"}, {"--again", "^N", "--chat"}, {}, "host"},
    {"both say yes, then both no, with chat", nullptr, {"--again", "^Y,N", "--chat"}, {"--again", "Y,^N", "--chat"}, {}, nullptr},
    {"a tournament that ends declined on the waiting client", kTournament2, {"--again", "^N", "--cards", "OK,^OK", "--chat"},
     {"--again", "Y", "--cards", "^OK,OK", "--reconnect", "Y,N", "--chat"}, {}, "client"},
    {"the host restarts twice, then the client cancels its wait", nullptr,
     {"--restart-after", "2", "--restart", "N,Y", "--again", "^Y"}, {"--again", "Y", "--patience", "400"}, {}, nullptr},
    {"the client quits and a new one joins", nullptr, {"--reconnect", "Y", "--again", "N"}, {"--quit-after", "3", "--chat"},
     {"--again", "Y"}, nullptr},
    {"the host quits and the client tries again", nullptr, {"--quit-after", "4"}, {"--reconnect", "Y,N"}, {}, nullptr},
};

// The sessions run side by side: their copies wait for their users far more than they work.
TEST(TwinCopies, EverySessionEndsInADesignedState) {
    TempDir dir;
    int seed = 0;
    std::vector<Copy> copies;
    std::map<const Session*, int> ports;
    for (const Session& s : kSessions) {
        ports[&s] = freePort();
        copies.push_back(start(dir.path(), ++seed, s, "host", ports[&s], s.host));
    }
    for (const Session& s : kSessions) {
        ASSERT_TRUE(listening(ports[&s], std::chrono::seconds(30))) << s.name << ": the host listens";
        copies.push_back(start(dir.path(), ++seed, s, "client", ports[&s], s.client));
    }
    // Every copy ends within the limit; a rejoining client comes once the first has gone and the
    // host has answered that it waits again (before that, a join is refused, as it would be).
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(90);
    std::vector<const Session*> rejoining;
    const auto hostWaitsAgain = [&](const Session* s) {
        for (const Copy& copy : copies)
            if (copy.session == s && copy.role == "host")
                for (const std::string& line : lines(copy.folder / "twin.log"))
                    if (line.rfind("answer reconnect#", 0) == 0) return listening(ports[s], std::chrono::seconds(5));
        return false;
    };
    for (bool running = true; running;) {
        if (std::chrono::steady_clock::now() > until) rejoining.clear();  // its host never waited again
        running = !rejoining.empty();
        for (auto s = rejoining.begin(); s != rejoining.end();)
            if (hostWaitsAgain(*s)) {
                copies.push_back(start(dir.path(), ++seed, **s, "rejoin", ports[*s], (*s)->rejoin));
                s = rejoining.erase(s);
            } else {
                ++s;
            }
        for (std::size_t i = 0; i < copies.size(); ++i) {
            Copy& copy = copies[i];
            if (copy.status != -2) continue;
            int status = 0;
            if (::waitpid(copy.pid, &status, WNOHANG) == copy.pid) {
                copy.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
                const Session& s = *copy.session;
                if (copy.role == "client" && !s.rejoin.empty()) rejoining.push_back(&s);
            } else if (std::chrono::steady_clock::now() > until) {
                ::kill(copy.pid, SIGKILL);
                ::waitpid(copy.pid, &status, 0);
                copy.status = -1;
            } else {
                running = true;
            }
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    for (const Session& s : kSessions) check(s, copies);
}

}  // namespace
}  // namespace petal::test
