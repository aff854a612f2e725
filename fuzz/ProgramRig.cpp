#include "ProgramRig.h"

#include <unistd.h>

#include <fstream>
#include <iterator>

#include "platform/FatalError.h"
#include "platform/sim/SimWorld.h"

namespace petal::fuzz {

namespace {

// Memory-backed where the machine has it: every input writes a folder of files.
std::filesystem::path scratch() {
    std::error_code ec;
    if (std::filesystem::is_directory("/dev/shm", ec) && ::access("/dev/shm", W_OK) == 0) return "/dev/shm";
    return std::filesystem::temp_directory_path();
}

// The boxes of runHandler that only a fault of the program shows.
bool faultBox(const MsgBox& box) {
    for (const char* start : {"Subscript out of range", "The program cannot go on", "Out of memory"})
        if (box.text.rfind(start, 0) == 0) return true;
    return false;
}

}  // namespace

ProgramRig::ProgramRig(SimWorld* world) : world_(world), folder_(scratch()) {}

// A world's programs leave their open waits before they go, and a program goes before its host.
ProgramRig::~ProgramRig() {
    if (world_) world_->endAll();
    program_.reset();
    host_.reset();
}

void ProgramRig::write(const std::string& name, const std::string& bytes) const {
    std::ofstream(file(name), std::ios::binary | std::ios::trunc)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string ProgramRig::read(const std::string& name) const {
    std::ifstream in(file(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

bool ProgramRig::start() {
    program_.reset();
    host_ = std::make_unique<SimHost>(folder_.path());
    if (world_) world_->join(*host_);
    program_ = std::make_unique<Program>(*host_);
    host_->onMsgBox = [this](const MsgBox& box) { return answer(box); };
    host_->onForm = [this](Form& form) {
        if (std::string(form.formName()) == "frmSplash") return form.Unload(true);
        if (onForm) onForm(form);
        form.Unload();
    };
    return act([this] { program_->Main(); });
}

bool ProgramRig::act(const std::function<void()>& fn) {
    return guard([&] {
        if (world_)
            world_->act(*host_, fn);
        else
            runHandler(*host_, fn);
    });
}

bool ProgramRig::guard(const std::function<void()>& step) {
    if (!failure_.empty()) return false;
    try {
        step();
    } catch (const std::exception& e) {
        fail(std::string("an exception out of the program: ") + e.what());
    } catch (...) {
        fail("an exception out of the program");
    }
    return failure_.empty();
}

MsgResult ProgramRig::answer(const MsgBox& box) {
    if (faultBox(box)) fail("a box that a player would never see: " + box.text.substr(0, 200));
    switch (box.buttons) {
        case MsgButtons::RetryCancel:
        case MsgButtons::OKCancel:
            return MsgResult::Cancel;
        case MsgButtons::YesNo:
        case MsgButtons::YesNoCancel:
            return MsgResult::No;
        case MsgButtons::RestoreDefaultsClose:
            return restoreDefaults ? MsgResult::RestoreDefaults : MsgResult::Close;
        case MsgButtons::OK:
            break;
    }
    return MsgResult::OK;
}

}  // namespace petal::fuzz
