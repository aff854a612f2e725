#include "FileRig.h"

#include <fstream>
#include <iterator>

#include "platform/FatalError.h"

namespace petal::fuzz {

namespace {

// The boxes of runHandler that only a fault of the program shows.
bool faultBox(const MsgBox& box) {
    for (const char* start : {"Subscript out of range", "The program cannot go on", "Out of memory"})
        if (box.text.rfind(start, 0) == 0) return true;
    return false;
}

}  // namespace

FileRig::FileRig(const std::filesystem::path& scratch) : folder_(scratch) {}

// The program goes before its host, and both before the folder.
FileRig::~FileRig() {
    program_.reset();
    host_.reset();
}

void FileRig::write(const std::string& name, const std::string& bytes) const {
    std::ofstream(file(name), std::ios::binary | std::ios::trunc)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

bool FileRig::read(const std::string& name, std::string& bytes) const {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(file(name), ec)) return false;
    std::ifstream in(file(name), std::ios::binary);
    if (!in) return false;
    bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    return true;
}

bool FileRig::start() {
    program_.reset();
    host_ = std::make_unique<SimHost>(folder());
    program_ = std::make_unique<Program>(*host_);
    host_->onMsgBox = [this](const MsgBox& box) { return answer(box); };
    host_->onForm = [this](Form& form) {
        if (std::string(form.formName()) == "frmSplash") {
            form.Unload(true);
            return;
        }
        if (onForm) onForm(form);
        if (form.loaded()) {
            fail(std::string("the form ") + form.formName() + " stands where a player would have closed it");
            form.Unload(true);
        }
    };
    return act([this] { program_->Main(); });
}

bool FileRig::act(const std::function<void()>& fn) {
    if (!failure_.empty()) return false;
    try {
        runHandler(*host_, fn);
    } catch (const std::exception& e) {
        fail(std::string("an exception out of the program: ") + e.what());
    } catch (...) {
        fail("an exception out of the program");
    }
    return failure_.empty();
}

void FileRig::stop() {
    if (program_ && !host_->ending()) program_->hof.CloseHallOfFame();
}

MsgResult FileRig::answer(const MsgBox& box) {
    if (faultBox(box)) fail("a box that a player would never see: " + box.text.substr(0, 200));
    switch (box.buttons) {
        case MsgButtons::RetryCancel:
        case MsgButtons::OKCancel:
            return MsgResult::Cancel;
        case MsgButtons::YesNo:
        case MsgButtons::YesNoCancel:
            return questionAnswer;
        case MsgButtons::RestoreDefaultsClose:
            return restoreDefaults ? MsgResult::RestoreDefaults : MsgResult::Close;
        case MsgButtons::OK:
            break;
    }
    return MsgResult::OK;
}

}  // namespace petal::fuzz
