#pragma once
// The program's own host without windows: real time (or faster), Qt's event loop and the
// program's sockets, with message boxes and forms answered by a script, as the headless player
// answers them.
#include <functional>
#include <utility>
#include <vector>

#include "platform/qt/QtCoreHost.h"

namespace petal::sim {

class HeadlessHost : public QtCoreHost {
public:
    using QtCoreHost::QtCoreHost;

    std::function<MsgResult(const MsgBox&)> onMsgBox;
    // Acts on a form shown modally; it may wait (waitUntil) for the game to unload it.
    std::function<void(Form&)> onForm;
    // No handler of the program runs: a player acts between events, not inside one that lets
    // others run.
    bool resting() const { return depth_ == 0 && !handling(); }

    void waitUntil(const std::function<bool()>& done) override;
    MsgResult msgBox(const MsgBox& box) override;
    void endSessionBoxes() override;
    void showModal(Form& form) override;
    void refresh() override {}
    void setMousePointer(int) override {}
    void showMainForm() override {}
    void sendKeys(const std::string&) override {}

private:
    int depth_ = 0;
    std::vector<std::pair<bool, bool>> open_;  // of a session, ended; innermost last
};

}  // namespace petal::sim
