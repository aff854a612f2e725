#pragma once
// The host of tests and headless tools: virtual time, a settable clock, and message boxes and
// forms answered by a script. An unexpected prompt throws UnexpectedPrompt, failing the test.
#include <cstdint>
#include <deque>
#include <map>
#include <vector>

#include "platform/Host.h"
#include "platform/UnexpectedPrompt.h"

namespace petal {

class SimHost : public Host {
public:
    explicit SimHost(std::filesystem::path folder);
    ~SimHost() override;

    // Virtual time in milliseconds since the host was made.
    std::int64_t now() const { return now_; }
    void setClock(int hour, int minute, int second);
    void setDate(int year, int month, int day);

    // Fires the next due timer, moving time forward to it. False if no timer is armed.
    bool step();
    // Runs every tick due within the next ms milliseconds, in order of due time.
    void advance(std::int64_t ms);
    // Steps until done() holds; false if time passes limitMs or nothing is left to run.
    bool runUntil(const std::function<bool()>& done, std::int64_t limitMs);

    // Scripted answers, taken in order. An entry with an empty text matches any box.
    void expectMsgBox(std::string text, std::string title, MsgResult answer);
    std::size_t pendingAnswers() const { return script_.size(); }
    // Answers boxes that the script does not cover; unset means such a box is a test failure.
    std::function<MsgResult(const MsgBox&)> onMsgBox;
    // Acts on a form shown modally; it must unload the form (or the form stays, and that throws).
    std::function<void(Form&)> onForm;
    const std::vector<MsgBox>& shownBoxes() const { return shown_; }
    int mousePointer() const { return pointer_; }
    int refreshCount() const { return refreshes_; }

    void timerChanged(Timer& timer) override;
    void timerRemoved(Timer& timer) override;
    void doEvents() override;
    void waitUntil(const std::function<bool()>& done) override;
    MsgResult msgBox(const MsgBox& box) override;
    void showModal(Form& form) override;
    void refresh() override { ++refreshes_; }
    void setMousePointer(int pointer) override { pointer_ = pointer; }
    std::string timeText() override;
    std::string dateText() override;
    std::filesystem::path programFolder() override { return folder_; }
    void endProgram() override { ending_ = true; }
    void endProgramAfterFailure() override {
        if (!ending_) status_ = 1;
        ending_ = true;
    }
    bool ending() const override { return ending_; }
    int exitStatus() const override { return status_; }

private:
    struct Due {
        std::int64_t at;
        std::uint64_t seq;
    };
    void fire(Timer& timer, std::int64_t at);
    Timer* nextDue() const;

    struct Expected {
        std::string text, title;
        MsgResult answer;
    };

    std::filesystem::path folder_;
    std::int64_t now_ = 0;
    std::uint64_t seq_ = 0;
    std::map<Timer*, Due> due_;
    std::int64_t clockBase_ = 12 * 3600;  // seconds of the day at virtual time 0
    int year_ = 2026, month_ = 11, day_ = 22;
    std::deque<Expected> script_;
    std::vector<MsgBox> shown_;
    int pointer_ = 0;
    int refreshes_ = 0;
    bool ending_ = false;
    int status_ = 0;
};

}  // namespace petal
