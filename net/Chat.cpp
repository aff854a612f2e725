#include "net/Chat.h"

#include "net/FrmPetalChat.h"
#include "platform/Host.h"
#include "shell/FrmMain.h"

namespace petal {

Chat::Chat(FrmMain& f) : f_(f) {}

Chat::~Chat() = default;

FrmPetalChat* Chat::form() const { return opening_ ? opening_.get() : shown_; }

void Chat::show() {
    if (shown_) return;  // it stands already, and is modal
    open(opening_ ? std::move(opening_) : std::make_unique<FrmPetalChat>(f_));
}

void Chat::receive(const std::string& line) {
    f_.playSoundFile("chat.wav");
    if (shown_ && shown_->loaded()) {
        shown_->receiveLine(line);
        return;
    }
    // A form that has just closed took its conversation with it: the line starts a new one.
    if (!opening_) {
        opening_ = std::make_unique<FrmPetalChat>(f_);
        f_.host.post([this] {
            // The menu may have shown it meanwhile.
            if (opening_) open(std::move(opening_));
        });
    }
    opening_->receiveLine(line);
}

void Chat::open(std::unique_ptr<FrmPetalChat> form) {
    FrmPetalChat* const covered = shown_;
    shown_ = form.get();
    struct Restore {
        FrmPetalChat*& shown;
        FrmPetalChat* covered;
        ~Restore() { shown = covered; }
    } restore{shown_, covered};
    f_.host.showModal(*form);
}

}  // namespace petal
