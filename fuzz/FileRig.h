#pragma once
// One program on the simulated host in a fresh folder, for the targets of the files that the
// program reads: the files are laid in the folder, then the program starts as its entry point
// starts it, its boxes are kept and answered as a player would (OK, Cancel to Retry, No to a
// question), and the forms it shows go to the target's script. Anything a player would never
// see (a box of an unexpected failure, an exception out of the program, a form left open) is
// kept as the rig's failure.
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "TempFolder.h"
#include "platform/sim/SimHost.h"
#include "shell/Program.h"

namespace petal::fuzz {

class FileRig {
public:
    explicit FileRig(const std::filesystem::path& scratch);
    ~FileRig();
    FileRig(const FileRig&) = delete;
    FileRig& operator=(const FileRig&) = delete;

    const std::filesystem::path& folder() const { return folder_.path(); }
    std::filesystem::path file(const std::string& name) const { return folder() / name; }
    void write(const std::string& name, const std::string& bytes) const;
    // The file's bytes; false if it cannot be read (it is missing, or no plain file).
    bool read(const std::string& name, std::string& bytes) const;

    // Starts a program (a new one, if one ran before) as main does; false if it failed.
    bool start();
    // Runs fn as a handler of the program, as the platform runs input; false if it failed.
    bool act(const std::function<void()>& fn);
    // The program ends as its last window closes: the Hall of Fame is closed.
    void stop();

    Program& program() { return *program_; }
    FrmMain& f() { return program_->frmMain; }
    SimHost& host() { return *host_; }
    const std::vector<MsgBox>& boxes() const { return host_->shownBoxes(); }
    const std::string& failure() const { return failure_; }
    void fail(const std::string& why) {
        if (failure_.empty()) failure_ = why;
    }

    // The seed of an input's plan: the same bytes, the same plan.
    static std::uint64_t planSeed(const std::string& bytes) {
        std::uint64_t hash = 0xCBF29CE484222325ULL;  // FNV-1a
        for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3ULL;
        return hash;
    }

    // The target's script for the forms other than the splash; it must unload them.
    std::function<void(Form&)> onForm;
    // The answer to a Yes or No question.
    MsgResult questionAnswer = MsgResult::No;
    // The answer to a file that cannot be read: Restore Defaults, or Close.
    bool restoreDefaults = false;

private:
    MsgResult answer(const MsgBox& box);

    sim::TempFolder folder_;
    std::unique_ptr<SimHost> host_;
    std::unique_ptr<Program> program_;
    std::string failure_;
};

}  // namespace petal::fuzz
