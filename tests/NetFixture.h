#pragma once
// Two programs, a host and a client, on one virtual clock and the simulated network; their
// boxes and forms are answered by a script that a test can change, and everything shown is kept.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "GameFixture.h"
#include "platform/Socket.h"
#include "platform/sim/SimWorld.h"

namespace petal::test {

class NetFixture : public ::testing::Test {
protected:
    struct Side {
        explicit Side(SimWorld& world);
        FrmMain& f() { return program->frmMain; }
        std::vector<std::string> titles() const;
        long boxes(const std::string& title) const;
        bool shown(const std::string& text) const;

        TempDir dir;
        SimHost host;
        std::unique_ptr<Program> program;
        // Answers by box title; a title not listed is a test failure.
        std::map<std::string, MsgResult> answers;
        // Acts on a form; the default opens Setup in this side's mode, waits out the network's
        // waits, and closes score cards at once.
        std::function<void(Form&)> onForm;
        int mode = 0;
        std::vector<std::string> formsShown;
        // Deals dealt and ended on this side.
        struct Ends : GameEvents {
            int count = 0;
            int deals = 0;
            void dealt() override { ++deals; }
            void dealEnded() override { ++count; }
        } ends;
    };

    // A bare socket in the world, driven by the test: a peer that is no copy of the game.
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

    NetFixture();
    ~NetFixture() override { world.endAll(); }

    // Host listens, client joins 127.0.0.1; true once the client waits for the first deal.
    bool connect();
    // The host clicks the deck; true once both have dealt.
    bool deal();
    // Plays both local players with the lowest slots until the deal has ended on both sides
    // (its end is running: questions and score cards may still stand).
    bool playDeal();
    // Plays both local players with the lowest slots until done() holds.
    bool playUntil(const std::function<bool()>& done);
    bool runUntil(const std::function<bool()>& done, std::int64_t limitMs = 60'000) { return world.runUntil(done, limitMs); }
    void act(Side& side, const std::function<void()>& fn) { world.act(side.host, fn); }
    // The host's options, set before the session starts.
    void hostOptions(int gameType, int rounds, bool yaku);

    SimWorld world;
    Side host, client;
};

}  // namespace petal::test
