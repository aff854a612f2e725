#include "platform/sim/SimHost.h"

#include <algorithm>
#include <cstdio>

#include "platform/FatalError.h"
#include "platform/Form.h"
#include "platform/Timer.h"
#include "platform/sim/Fiber.h"
#include "platform/sim/SimSocket.h"
#include "platform/sim/SimWorld.h"

namespace petal {

SimHost::SimHost(std::filesystem::path folder) : folder_(std::move(folder)) {}

SimHost::~SimHost() {
    for (SimSocket* socket : sockets_) socket->hostGone();
    if (world_) world_->leave(*this);
}

void SimHost::setClock(int hour, int minute, int second) {
    clockBase_ = hour * 3600 + minute * 60 + second - now() / 1000;
}

void SimHost::setDate(int year, int month, int day) {
    year_ = year;
    month_ = month;
    day_ = day;
}

void SimHost::timerChanged(Timer& timer) {
    forget(&timer);
    if (timer.Enabled() && timer.Interval() > 0) {
        const Key key{now() + timer.Interval(), nextSeq()};
        due_[&timer] = key;
        if (!timer.ticking()) offer({key, &timer, 0});
    } else {
        due_.erase(&timer);
    }
}

void SimHost::timerRemoved(Timer& timer) {
    forget(&timer);
    due_.erase(&timer);
}

void SimHost::schedule(std::int64_t at, std::function<void()> call) {
    calls_.push_back({{std::max(at, now()), nextSeq()}, std::move(call), nullptr, nullptr});
    offer({calls_.back().key, nullptr, calls_.size() - 1});
}

void SimHost::scheduleSocketEvent(std::int64_t at, SimSocket& socket, std::function<void(SimSocket&)> event) {
    calls_.push_back({{std::max(at, now()), nextSeq()}, nullptr, &socket, std::move(event)});
    offer({calls_.back().key, nullptr, calls_.size() - 1});
}

void SimHost::socketGone(const SimSocket& socket) {
    for (Call& c : calls_)
        if (c.socket == &socket) c.socket = nullptr;
    sockets_.erase(std::remove(sockets_.begin(), sockets_.end(), &socket), sockets_.end());
}

bool SimHost::idle() const {
    const std::optional<Key> key = nextKey();
    return !key || key->at > now();
}

void SimHost::findNext() const {
    next_.reset();
    for (const auto& [timer, key] : due_)
        if (!timer->ticking() && (!next_ || key < next_->key)) next_ = Next{key, timer, 0};
    for (std::size_t i = 0; i < calls_.size(); ++i)
        if (!next_ || calls_[i].key < next_->key) next_ = Next{calls_[i].key, nullptr, i};
    nextKnown_ = true;
}

void SimHost::fire(Timer& timer, std::int64_t at) {
    if (at > now()) *clock_ = at;
    // The timer stays listed while it ticks, out of the running as a ticking timer; its own
    // tick may stop it (unlisted) or arm it anew (listed again under a later key).
    const std::uint64_t fired = due_.find(&timer)->seq;
    forget(&timer);
    timer.fire();
    Key* entry = due_.find(&timer);
    if (!entry) return;
    // Periodic: the next tick falls on the interval grid after the one just fired; a tick that
    // came due while this one ran is dropped, as a platform timer coalesces them.
    if (entry->seq == fired) {
        std::int64_t next = at + timer.Interval();
        while (next <= now() && next > at) next += timer.Interval();
        *entry = Key{next, nextSeq()};
    }
    offer({*entry, &timer, 0});
}

void SimHost::eventPass() const {
    if (releasesPending_ == 0 || ending_) return;
    for (const SimSocket* socket : sockets_) socket->eventPass(loopDepth_);
}

void SimHost::runNextDue() {
    const Next* n = next();
    if (!n) return;
    eventPass();
    const Key key = n->key;
    if (n->timer) {
        fire(*n->timer, key.at);
        return;
    }
    Call c = std::move(calls_[n->call]);
    calls_.erase(calls_.begin() + static_cast<std::ptrdiff_t>(n->call));
    changed();
    if (key.at > now()) *clock_ = key.at;
    if (c.socketEvent) {
        if (c.socket) c.socketEvent(*c.socket);
    } else {
        c.call();
    }
}

bool SimHost::step() {
    if (world_) throw UnexpectedPrompt("a host in a world is stepped by its world");
    if (ending_ || !nextKey()) return false;
    runNextDue();
    return true;
}

void SimHost::advance(std::int64_t ms) {
    const std::int64_t end = now() + ms;
    while (!ending_) {
        const std::optional<Key> key = nextKey();
        if (!key || key->at > end) break;
        step();
    }
    if (now() < end) *clock_ = end;
}

bool SimHost::runUntil(const std::function<bool()>& done, std::int64_t limitMs) {
    const std::int64_t end = now() + limitMs;
    while (!done()) {
        if (ending_) return false;
        const std::optional<Key> key = nextKey();
        if (!key || key->at > end) return false;
        step();
    }
    return true;
}

namespace {
struct Nested {
    int& depth;
    explicit Nested(int& d) : depth(d) { ++depth; }
    ~Nested() { --depth; }
};
}  // namespace

void SimHost::doEvents() {
    const Nested loop(loopDepth_);
    // Only what is due now: letting events run moves no time.
    for (int guard = 0; guard < 64 && !ending_; ++guard) {
        const std::optional<Key> key = nextKey();
        if (!key || key->at > now()) return;
        runNextDue();
    }
}

void SimHost::waitUntil(const std::function<bool()>& done) {
    const Nested loop(loopDepth_);
    if (!world_) {
        while (!done() && !ending_) {
            if (!step()) throw UnexpectedPrompt("a wait with no event left to end it");
        }
        eventPass();
        return;
    }
    if (Fiber::current() != fiber_.get())
        throw UnexpectedPrompt("a program in a world waited outside its own stack: call it through SimWorld::act");
    ++waitDepth_;
    struct Depth {
        int& depth;
        ~Depth() { --depth; }
    } depth{waitDepth_};
    while (!done() && !ending_ && !failure_) {
        fiber_->yield();
        runCommand();
    }
    // The loop's last pass, whose event ended the wait.
    if (!failure_) eventPass();
}

void SimHost::runCommand() {
    const Command command = command_;
    command_ = Command::None;
    try {
        if (command == Command::RunDue) {
            runHandler(*this, [this] { runNextDue(); });
        } else if (command == Command::Act) {
            const std::function<void()> action = std::move(action_);
            action_ = nullptr;
            eventPass();
            runHandler(*this, action);
        }
    } catch (...) {
        failure_ = std::current_exception();
    }
}

MsgResult SimHost::msgBox(const MsgBox& box) {
    shown_.push_back(box);
    if (ending_) return MsgResult::Cancel;
    if (!script_.empty()) {
        Expected next = script_.front();
        if (!next.text.empty() && (next.text != box.text || next.title != box.title))
            throw UnexpectedPrompt("message box \"" + box.text + "\" (" + box.title + ") where the script expects \"" +
                                   next.text + "\"");
        script_.pop_front();
        return next.answer;
    }
    if (onMsgBox) {
        const Nested loop(loopDepth_);
        open_.push_back({box.ofSession, false});
        struct Close {
            std::vector<OpenBox>& open;
            ~Close() { open.pop_back(); }
        } close{open_};
        const MsgResult answer = onMsgBox(box);
        eventPass();  // the box's loop takes the click
        return open_.back().ended ? MsgResult::Cancel : answer;
    }
    throw UnexpectedPrompt("unexpected message box \"" + box.text + "\" (" + box.title + ")");
}

void SimHost::endSessionBoxes() {
    for (OpenBox& box : open_)
        if (box.ofSession) box.ended = true;
}

void SimHost::expectMsgBox(std::string text, std::string title, MsgResult answer) {
    script_.push_back({std::move(text), std::move(title), answer});
}

void SimHost::showModal(Form& form) {
    form.markLoaded();
    form.Form_Load();
    if (!form.loaded() || ending_) return;
    form.Form_Activate();
    if (!form.loaded() || ending_) return;
    if (!onForm) throw UnexpectedPrompt(std::string("unexpected form ") + form.formName());
    const Nested modal(modalDepth_);
    const Nested loop(loopDepth_);
    onForm(form);
    eventPass();
    if (form.loaded() && !ending_)
        throw UnexpectedPrompt(std::string("form left open by the script: ") + form.formName());
}

std::string SimHost::timeText() {
    long long secs = (clockBase_ + now() / 1000) % 86400;
    if (secs < 0) secs += 86400;
    char buf[16];
    std::snprintf(buf, sizeof buf, "%02lld:%02lld:%02lld", secs / 3600, secs / 60 % 60, secs % 60);
    return buf;
}

std::string SimHost::dateText() {
    char buf[16];
    std::snprintf(buf, sizeof buf, "%02d/%02d/%04d", month_, day_, year_);
    return buf;
}

std::unique_ptr<Socket> SimHost::createSocket() {
    auto socket = std::make_unique<SimSocket>(*this, world_ ? &world_->network() : nullptr);
    sockets_.push_back(socket.get());
    return socket;
}

void SimHost::endProgram() {
    if (ending_) return;
    ending_ = true;
    if (world_) world_->unwindDue_ = true;
    for (SimSocket* socket : sockets_) socket->Close();
}

}  // namespace petal
