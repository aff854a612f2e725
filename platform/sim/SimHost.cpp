#include "platform/sim/SimHost.h"

#include <cstdio>

#include "platform/Form.h"
#include "platform/Timer.h"

namespace petal {

SimHost::SimHost(std::filesystem::path folder) : folder_(std::move(folder)) {}

SimHost::~SimHost() = default;

void SimHost::setClock(int hour, int minute, int second) {
    clockBase_ = hour * 3600 + minute * 60 + second - now_ / 1000;
}

void SimHost::setDate(int year, int month, int day) {
    year_ = year;
    month_ = month;
    day_ = day;
}

void SimHost::timerChanged(Timer& timer) {
    if (timer.Enabled() && timer.Interval() > 0)
        due_[&timer] = {now_ + timer.Interval(), seq_++};
    else
        due_.erase(&timer);
}

void SimHost::timerRemoved(Timer& timer) { due_.erase(&timer); }

Timer* SimHost::nextDue() const {
    Timer* best = nullptr;
    Due bestDue{};
    for (const auto& [timer, due] : due_) {
        if (timer->ticking()) continue;
        if (!best || due.at < bestDue.at || (due.at == bestDue.at && due.seq < bestDue.seq)) {
            best = timer;
            bestDue = due;
        }
    }
    return best;
}

void SimHost::fire(Timer& timer, std::int64_t at) {
    if (at > now_) now_ = at;
    // Periodic: the next tick falls on the interval grid after the one just fired; a tick that
    // came due while this one ran is dropped, as a platform timer coalesces them.
    due_.erase(&timer);
    timer.fire();
    if (!timer.Enabled() || timer.Interval() <= 0 || due_.count(&timer)) return;
    std::int64_t next = at + timer.Interval();
    while (next <= now_ && next > at) next += timer.Interval();
    due_[&timer] = {next, seq_++};
}

bool SimHost::step() {
    if (ending_) return false;
    Timer* timer = nextDue();
    if (!timer) return false;
    fire(*timer, due_[timer].at);
    return true;
}

void SimHost::advance(std::int64_t ms) {
    const std::int64_t end = now_ + ms;
    while (!ending_) {
        Timer* timer = nextDue();
        if (!timer || due_[timer].at > end) break;
        fire(*timer, due_[timer].at);
    }
    if (now_ < end) now_ = end;
}

bool SimHost::runUntil(const std::function<bool()>& done, std::int64_t limitMs) {
    const std::int64_t end = now_ + limitMs;
    while (!done()) {
        if (ending_) return false;
        Timer* timer = nextDue();
        if (!timer || due_[timer].at > end) return false;
        fire(*timer, due_[timer].at);
    }
    return true;
}

void SimHost::doEvents() {
    std::vector<Timer*> ready;
    for (const auto& [timer, due] : due_)
        if (due.at <= now_ && !timer->ticking()) ready.push_back(timer);
    for (Timer* timer : ready) {
        if (ending_) return;
        auto it = due_.find(timer);
        if (it != due_.end() && it->second.at <= now_) fire(*timer, it->second.at);
    }
}

void SimHost::waitUntil(const std::function<bool()>& done) {
    while (!done() && !ending_) {
        if (!step()) throw UnexpectedPrompt("a wait with no event left to end it");
    }
}

MsgResult SimHost::msgBox(const MsgBox& box) {
    shown_.push_back(box);
    if (ending_) return MsgResult::Cancel;
    if (!script_.empty()) {
        Expected next = script_.front();
        if (!next.text.empty() && (next.text != box.text || next.title != box.title))
            throw UnexpectedPrompt("message box \"" + box.text + "\" (" + box.title +
                                   ") where the script expects \"" + next.text + "\"");
        script_.pop_front();
        return next.answer;
    }
    if (onMsgBox) return onMsgBox(box);
    throw UnexpectedPrompt("unexpected message box \"" + box.text + "\" (" + box.title + ")");
}

void SimHost::expectMsgBox(std::string text, std::string title, MsgResult answer) {
    script_.push_back({std::move(text), std::move(title), answer});
}

void SimHost::showModal(Form& form) {
    form.markLoaded();
    form.Form_Load();
    if (!form.loaded() || ending_) return;
    form.Form_Activate();
    if (!onForm) throw UnexpectedPrompt(std::string("unexpected form ") + form.formName());
    onForm(form);
    if (form.loaded() && !ending_)
        throw UnexpectedPrompt(std::string("form left open by the script: ") + form.formName());
}

std::string SimHost::timeText() {
    long long secs = (clockBase_ + now_ / 1000) % 86400;
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

}  // namespace petal
