#include "HeadlessHost.h"

#include "platform/Form.h"

namespace petal::sim {

namespace {
struct Depth {
    int& depth;
    explicit Depth(int& d) : depth(d) { ++depth; }
    ~Depth() { --depth; }
};
}  // namespace

void HeadlessHost::waitUntil(const std::function<bool()>& done) {
    Depth depth(depth_);
    QtCoreHost::waitUntil(done);
}

MsgResult HeadlessHost::msgBox(const MsgBox& box) {
    if (ending() || !onMsgBox) return MsgResult::Cancel;
    Depth depth(depth_);
    open_.emplace_back(box.ofSession, false);
    const MsgResult answer = onMsgBox(box);
    const bool ended = open_.back().second;
    open_.pop_back();
    return ended ? MsgResult::Cancel : answer;
}

void HeadlessHost::endSessionBoxes() {
    for (auto& [ofSession, ended] : open_)
        if (ofSession) ended = true;
}

void HeadlessHost::showModal(Form& form) {
    if (ending()) return;
    Depth depth(depth_);
    form.markLoaded();
    form.Form_Load();
    if (!form.loaded() || ending()) return;
    form.Form_Activate();
    if (form.loaded() && onForm) onForm(form);
    if (form.loaded()) form.Unload();
}

}  // namespace petal::sim
