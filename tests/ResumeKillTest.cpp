// Tournaments of the headless player, killed with SIGKILL at random moments (in moves, in the
// middle of a save, in the score card, the Hall of Fame's form, the resume question), again and
// again: every start must show the table of the last move it saved, and the game must end as
// the same game played unbroken.
#include <gtest/gtest.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <map>
#include <optional>
#include <random>
#include <sstream>
#include <thread>

#include "GameFixture.h"
#include "ToolProcess.h"
#include "TempFolder.h"
#include "records/SavedGame.h"
#include "records/Statistics.h"

namespace petal::test {
namespace {

// The headless tool with its output read line by line as it comes, through a pipe of its own.
class Player {
public:
    Player(const std::vector<std::string>& args, const std::filesystem::path& pipe) {
        ::mkfifo(pipe.c_str(), 0600);
        fd_ = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);  // a reader first, so that the tool's open returns
        pid_ = startProgram(PETAL_SIM, args, pipe);
        std::filesystem::remove(pipe);
    }
    ~Player() {
        kill();
        ::close(fd_);
    }
    // The next whole line, or nothing once the process has ended (or after a minute).
    std::optional<std::string> line() {
        std::size_t end;
        while ((end = buffer_.find('\n')) == std::string::npos) {
            pollfd p{fd_, POLLIN, 0};
            char chunk[65536];
            const ssize_t got = ::poll(&p, 1, 60'000) == 1 ? ::read(fd_, chunk, sizeof chunk) : 0;
            if (got <= 0) return std::nullopt;
            buffer_.append(chunk, static_cast<std::size_t>(got));
        }
        std::string text = buffer_.substr(0, end);
        buffer_.erase(0, end + 1);
        return text;
    }
    void kill() {
        if (pid_ > 0) ::kill(pid_, SIGKILL), ::waitpid(pid_, nullptr, 0);
        pid_ = 0;
    }

private:
    pid_t pid_ = 0;
    int fd_ = -1;
    std::string buffer_;
};

// A memory-backed folder where there is one: the test is of kills, not of the disk's speed.
struct KillFolder : sim::TempFolder {
    KillFolder() : sim::TempFolder(::access("/dev/shm", W_OK) == 0 ? "/dev/shm" : std::filesystem::temp_directory_path()) {}
};

std::pair<long, std::string> numbered(const std::string& line, std::size_t skip) {
    const std::size_t space = line.find(' ', skip);
    return {std::stol(line.substr(skip, space - skip)), line.substr(space + 1)};
}

TEST(ResumeKill, EveryStartShowsTheLastSavedMoveAndTheGameEndsAsUnbroken) {
    std::mt19937 random(26);  // fixed, so that a failure comes back the same
    int kills = 0, inMoves = 0, inDialogs = 0, inWrites = 0, games = 0;
    for (int chain = 0; chain < 40 && kills < 220; ++chain) {
        const std::vector<std::string> game = {"keep", "--tournament", std::to_string(3 + chain % 3), "--policy",
                                               "random:" + std::to_string(chain + 1)};
        KillFolder unbroken, killed;
        std::map<long, std::string> tables;
        std::string end;
        {
            std::vector<std::string> args = game;
            args.insert(args.end(), {"--folder", unbroken.path().string()});
            ASSERT_EQ(finishProgram(startProgram(PETAL_SIM, args, unbroken.path() / "out"), std::chrono::seconds(60)), 0);
            std::istringstream out(fileText(unbroken.path() / "out"));
            for (std::string l; std::getline(out, l);) {
                if (l.rfind("move ", 0) == 0) tables.insert(numbered(l, 5));
                if (l.rfind("end ", 0) == 0) end = l.substr(4);
            }
            ASSERT_FALSE(end.empty());
        }
        std::vector<std::string> args = game;
        args.insert(args.end(), {"--folder", killed.path().string(), "--dwell", "3"});
        long last = 0;  // the last move a killed process was seen to save
        for (int start = 0; start < 200; ++start) {
            // A game whose save is gone after its moves has ended.
            if (last > 0 && !std::filesystem::exists(killed.path() / SavedGame::kFileName)) break;
            // A write cut off by the kill leaves its temporary file beside the save.
            inWrites += std::filesystem::exists(killed.path() / (std::string(SavedGame::kFileName) + ".tmp")) ? 1 : 0;
            Player p(args, killed.path() / "out");
            const int lines = std::uniform_int_distribution<int>(1, 8)(random);
            bool firstTable = true, killedIt = false;
            std::string lastLine;
            // Lines written before the kill are still read: they tell how far the process came.
            for (int seen = 0; const auto l = p.line();) {
                if (*l != "start") ++seen;
                ASSERT_NE(l->rfind("told ", 0), 0u) << *l;
                if (l->rfind("resumed ", 0) == 0) {
                    const auto [n, table] = numbered(*l, 8);
                    EXPECT_TRUE(firstTable) << "start " << start;
                    EXPECT_TRUE(n == last || n == last + 1) << "resumed at " << n << " after " << last;
                    EXPECT_EQ(table, tables[n]) << "resumed at move " << n;
                    last = n;
                } else if (l->rfind("move ", 0) == 0) {
                    const auto [n, table] = numbered(*l, 5);
                    EXPECT_EQ(table, tables[n]) << "move " << n << " after a resume";
                    last = n;
                } else if (l->rfind("end ", 0) == 0) {
                    EXPECT_EQ(l->substr(4), end);
                }
                if (l->rfind("resumed ", 0) == 0 || l->rfind("move ", 0) == 0 || *l == "fresh") firstTable = false;
                lastLine = *l;
                if (seen == lines) {
                    std::this_thread::sleep_for(std::chrono::microseconds(std::uniform_int_distribution<int>(0, 400)(random)));
                    p.kill();
                    ++kills;
                    killedIt = true;
                }
            }
            if (HasFailure()) return;
            if (!killedIt) break;
            // A box or form that was shown last stood when the kill came.
            ++(lastLine.rfind("move ", 0) == 0 || lastLine.rfind("resumed ", 0) == 0 ? inMoves : inDialogs);
        }
        ++games;
        // The statistics hold the game once, with its unbroken result.
        SimHost host(killed.path());
        Statistics stats(host);
        const std::vector<GameResult> games = stats.games();
        ASSERT_EQ(games.size(), 1u) << "chain " << chain;
        EXPECT_EQ(std::to_string(games[0].score) + " " + std::to_string(games[0].against), end.substr(0, end.find(' ', end.find(' ') + 1)));
    }
    std::printf("%d kills over %d tournaments: %d during play (%d of them in a save's write), %d in a box or form\n",
                kills, games, inMoves, inWrites, inDialogs);
    EXPECT_GE(kills, 200);
    EXPECT_GE(inDialogs, 20);
}

}  // namespace
}  // namespace petal::test
