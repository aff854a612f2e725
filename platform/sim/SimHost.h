#pragma once
// The host of tests and headless tools: virtual time, a settable clock, and message boxes and
// forms answered by a script. An unexpected prompt throws UnexpectedPrompt, failing the test.
//
// Alone, a host runs everything on the caller's stack: waits step its own timers. Joined to a
// SimWorld, it shares the world's clock with other hosts and runs on a stack of its own, so
// that two programs can talk over the simulated network (see SimWorld).
#include <cstdint>
#include <deque>
#include <exception>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Host.h"
#include "platform/UnexpectedPrompt.h"

namespace petal {

class Fiber;
class SimSocket;
class SimWorld;

class SimHost : public Host {
public:
    explicit SimHost(std::filesystem::path folder);
    ~SimHost() override;

    // Virtual time in milliseconds since the host (or its world) was made.
    std::int64_t now() const { return *clock_; }
    void setClock(int hour, int minute, int second);
    void setDate(int year, int month, int day);

    // Alone only: fires the next due event, moving time forward to it. False if none is left.
    bool step();
    // Alone only: runs every event due within the next ms milliseconds, in order of due time.
    void advance(std::int64_t ms);
    // Alone only: steps until done() holds; false if time passes limitMs or nothing is left.
    bool runUntil(const std::function<bool()>& done, std::int64_t limitMs);

    // A one-shot event of this program at virtual time `at` (a socket's, say).
    void schedule(std::int64_t at, std::function<void()> call);

    // Scripted answers, taken in order. An entry with an empty text matches any box.
    void expectMsgBox(std::string text, std::string title, MsgResult answer);
    std::size_t pendingAnswers() const { return script_.size(); }
    // Answers boxes that the script does not cover; unset means such a box is a test failure.
    std::function<MsgResult(const MsgBox&)> onMsgBox;
    // Acts on a form shown modally; it must unload the form (or the form stays, and that throws).
    // In a world it may wait (host.waitUntil) for the other program to unload it.
    std::function<void(Form&)> onForm;
    const std::vector<MsgBox>& shownBoxes() const { return shown_; }
    // The innermost box that a script is answering was closed by the end of its session: its
    // answer goes nowhere.
    bool boxEnded() const { return !open_.empty() && open_.back().ended; }
    int mousePointer() const { return pointer_; }
    int refreshCount() const { return refreshes_; }

    void timerChanged(Timer& timer) override;
    void timerRemoved(Timer& timer) override;
    void doEvents() override;
    bool idle() const override;
    void waitUntil(const std::function<bool()>& done) override;
    // A call due now: it runs as the next event of this program.
    void post(std::function<void()> call) override { schedule(now(), std::move(call)); }
    MsgResult msgBox(const MsgBox& box) override;
    void endSessionBoxes() override;
    void showModal(Form& form) override;
    void refresh() override { ++refreshes_; }
    void setMousePointer(int pointer) override { pointer_ = pointer; }
    // Nothing is played; the paths are kept in order once recordSounds is set (a headless run
    // of many deals asks for many).
    void playSound(const std::string& path) override {
        if (recordSounds) sounds.push_back(path);
    }
    bool recordSounds = false;
    std::vector<std::string> sounds;
    std::string timeText() override;
    std::string dateText() override;
    std::filesystem::path programFolder() override { return folder_; }
    std::filesystem::path helpFolder() override { return folder_; }
    void showMainForm() override { mainFormShown_ = true; }
    // No keyboard and no help window here: keys pressed for the user reach nothing.
    void sendKeys(const std::string&) override {}
    bool mainFormShown() const { return mainFormShown_; }
    std::unique_ptr<Socket> createSocket() override;
    std::vector<std::string> localAddresses() override { return addresses; }
    std::vector<std::string> addresses = {"192.0.2.10", "2001:db8::10"};  // for documentation
    // The router's side as a test scripts it: nothing here ever asks a network. None unless a
    // test gives one.
    std::function<std::unique_ptr<PortMapper>()> portMappers;
    std::unique_ptr<PortMapper> createPortMapper() override { return portMappers ? portMappers() : nullptr; }
    // The program's end closes its sockets, as a process's end does.
    void endProgram() override;
    void endProgramAfterFailure() override {
        if (!ending_) status_ = 1;
        endProgram();
    }
    bool ending() const override { return ending_; }
    int exitStatus() const override { return status_; }

    // Inside a world: whether a handler of this program is waiting in a nested loop.
    bool waiting() const { return waitDepth_ > 0; }
    // Whether a modal form of this program stands, which keeps input from the main window.
    bool modal() const { return modalDepth_ > 0; }

private:
    friend class SimWorld;
    friend class SimSocket;

    struct Key {
        std::int64_t at;
        std::uint64_t seq;
        bool operator<(const Key& o) const { return at != o.at ? at < o.at : seq < o.seq; }
    };
    // A call of the program, or an event of one of its sockets, which lapses if the socket goes.
    struct Call {
        Key key;
        std::function<void()> call;
        SimSocket* socket = nullptr;
        std::function<void(SimSocket&)> socketEvent;
    };
    void scheduleSocketEvent(std::int64_t at, SimSocket& socket, std::function<void(SimSocket&)> event);
    void socketGone(const SimSocket& socket);
    // The nested loops open on this program's stack: waits, boxes and forms.
    int loopDepth() const { return loopDepth_; }
    // A socket's connection was closed under one of its events, or that event has ended.
    void releasePending() { ++releasesPending_; }
    void releaseSettled() { --releasesPending_; }
    // Each event runs in a pass of the innermost loop open.
    void eventPass() const;
    struct Expected {
        std::string text, title;
        MsgResult answer;
    };

    // The earliest due event: an armed timer not ticking now, or a call (by its index).
    struct Next {
        Key key;
        Timer* timer;
        std::size_t call;
    };
    const Next* next() const {
        if (!nextKnown_) findNext();
        return next_ ? &*next_ : nullptr;
    }
    std::optional<Key> nextKey() const {
        const Next* n = next();
        return n ? std::optional<Key>(n->key) : std::nullopt;
    }
    void findNext() const;
    void changed() { nextKnown_ = false; }
    // The next event is kept up to date where that is cheap: a new event can only come first
    // or not; the loss of the event that was next means looking again.
    void offer(const Next& candidate) {
        if (nextKnown_ && (!next_ || candidate.key < next_->key)) next_ = candidate;
    }
    void forget(const Timer* timer) {
        if (next_ && next_->timer == timer) nextKnown_ = false;
    }
    // Fires the earliest due event (timer or call), moving the clock to it.
    void runNextDue();
    void fire(Timer& timer, std::int64_t at);
    std::uint64_t nextSeq() { return (*seq_)++; }
    // What the world has asked this program's stack to do when it is resumed.
    enum class Command { None, RunDue, Act };
    void runCommand();

    std::filesystem::path folder_;
    std::int64_t ownClock_ = 0;
    std::uint64_t ownSeq_ = 0;
    std::int64_t* clock_ = &ownClock_;
    std::uint64_t* seq_ = &ownSeq_;
    // The armed timers and when each is due: a handful, so a plain list.
    struct DueTimers {
        std::vector<std::pair<Timer*, Key>> list;
        Key& operator[](Timer* timer) {
            for (auto& entry : list)
                if (entry.first == timer) return entry.second;
            return list.emplace_back(timer, Key{}).second;
        }
        Key* find(const Timer* timer) {
            for (auto& entry : list)
                if (entry.first == timer) return &entry.second;
            return nullptr;
        }
        void erase(Timer* timer) {
            for (auto it = list.begin(); it != list.end(); ++it)
                if (it->first == timer) {
                    list.erase(it);
                    return;
                }
        }
        auto begin() const { return list.begin(); }
        auto end() const { return list.end(); }
    } due_;
    std::vector<Call> calls_;
    // Kept until the timers or calls change (or a tick starts or ends).
    mutable std::optional<Next> next_;
    mutable bool nextKnown_ = false;
    std::int64_t clockBase_ = 12 * 3600;  // seconds of the day at virtual time 0
    int year_ = 2026, month_ = 11, day_ = 22;
    std::deque<Expected> script_;
    std::vector<MsgBox> shown_;
    struct OpenBox {
        bool ofSession;
        bool ended;
    };
    std::vector<OpenBox> open_;  // boxes that a script answers, innermost last
    int pointer_ = 0;
    int refreshes_ = 0;
    bool ending_ = false;

    // In a world.
    SimWorld* world_ = nullptr;
    std::unique_ptr<Fiber> fiber_;
    Command command_ = Command::None;
    std::function<void()> action_;  // for Command::Act
    std::exception_ptr failure_;
    int waitDepth_ = 0;
    int modalDepth_ = 0;
    int loopDepth_ = 0;
    int releasesPending_ = 0;
    std::vector<SimSocket*> sockets_;
    bool mainFormShown_ = false;
    int status_ = 0;
};

}  // namespace petal
