#pragma once
// The main form's host. It passes every call on to the program's own host, except while a
// saved game is replayed: then the game's timers run on a clock of their own, as fast as the
// replay asks, waits end without sleeping, forms already answered in the saved game are passed
// over, and a deal takes its seed from the save. At the end of the replay the timers that
// stand armed are handed to the program's host, which runs them from then on.
#include <cstdint>
#include <functional>
#include <vector>

#include "platform/Host.h"
#include "platform/PortMapper.h"

namespace petal {

class ReplayHost : public Host {
public:
    explicit ReplayHost(Host& real) : real_(real) {}

    void beginReplay(std::function<std::string()> seed);
    void endReplay();
    bool replaying() const { return replaying_; }
    // Fires the timer due first on the replay's clock; false if none is armed.
    bool step();

    void timerChanged(Timer& timer) override;
    void timerRemoved(Timer& timer) override;
    void doEvents() override;
    bool idle() const override { return replaying_ || real_.idle(); }
    void waitUntil(const std::function<bool()>& done) override;
    void post(std::function<void()> call) override { real_.post(std::move(call)); }
    MsgResult msgBox(const MsgBox& box) override { return real_.msgBox(box); }
    void endSessionBoxes() override { real_.endSessionBoxes(); }
    void showModal(Form& form) override;
    void refresh() override;
    void setMousePointer(int pointer) override { real_.setMousePointer(pointer); }
    // A replayed game is silent: its moves were heard when they were made.
    void playSound(const std::string& path) override {
        if (!replaying_) real_.playSound(path);
    }
    std::string timeText() override;
    std::string dateText() override { return real_.dateText(); }
    std::string translate(const char* context, const char* text) override { return real_.translate(context, text); }
    std::filesystem::path programFolder() override { return real_.programFolder(); }
    std::filesystem::path helpFolder() override { return real_.helpFolder(); }
    void showMainForm() override { real_.showMainForm(); }
    void sendKeys(const std::string& keys) override { real_.sendKeys(keys); }
    std::unique_ptr<Socket> createSocket() override;
    std::vector<std::string> localAddresses() override { return real_.localAddresses(); }
    std::unique_ptr<PortMapper> createPortMapper() override { return real_.createPortMapper(); }
    void endProgram() override { real_.endProgram(); }
    void endProgramAfterFailure() override { real_.endProgramAfterFailure(); }
    bool ending() const override { return real_.ending(); }
    int exitStatus() const override { return real_.exitStatus(); }

private:
    struct Due {
        Timer* timer;
        std::int64_t at;
        std::uint64_t seq;
    };

    static constexpr int kMostSteps = 200000;

    Host& real_;
    bool replaying_ = false;
    std::function<std::string()> seed_;
    std::int64_t now_ = 0;
    std::uint64_t seq_ = 0;
    int steps_ = 0;
    std::vector<Due> due_;
    std::vector<Timer*> touched_;  // changed during the replay: the program's host has not heard
};

}  // namespace petal
