#pragma once
// One program of the game on the simulated host, in a fresh folder (in memory where the machine
// has such a folder), for the fuzz targets. It starts as main starts it; its boxes are answered
// as a player would answer them (OK, Cancel to Retry, No to a question, Close or
// Restore Defaults as the target says) and its forms go to the
// target's script, then close. What a player would never see (a box of a fault, an exception
// out of the program) is kept as the rig's failure.
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "TempFolder.h"
#include "platform/sim/SimHost.h"
#include "shell/Program.h"

namespace petal {
class SimWorld;
}

namespace petal::fuzz {

class ProgramRig {
public:
    // In a world, the program runs on a stack of its own, on the world's clock.
    explicit ProgramRig(SimWorld* world = nullptr);
    ~ProgramRig();
    ProgramRig(const ProgramRig&) = delete;
    ProgramRig& operator=(const ProgramRig&) = delete;

    std::filesystem::path file(const std::string& name) const { return folder_.path() / name; }
    void write(const std::string& name, const std::string& bytes) const;
    std::string read(const std::string& name) const;

    // A program started anew in the folder, as main starts it; false if it failed.
    bool start();
    // Runs fn as input to the program; false if the program has failed.
    bool act(const std::function<void()>& fn);
    // Runs a step of the program's world (time passing, say), keeping what it throws.
    bool guard(const std::function<void()>& step);

    SimHost& host() { return *host_; }
    Program& program() { return *program_; }
    FrmMain& f() { return program_->frmMain; }
    const std::string& failure() const { return failure_; }
    void fail(const std::string& why) {
        if (failure_.empty()) failure_ = why;
    }

    // The target's script for the forms other than the splash.
    std::function<void(Form&)> onForm;
    // The answer to a settings file that cannot be read: Restore Defaults, or Close.
    bool restoreDefaults = false;

private:
    MsgResult answer(const MsgBox& box);

    SimWorld* world_;
    sim::TempFolder folder_;
    std::unique_ptr<SimHost> host_;
    std::unique_ptr<Program> program_;
    std::string failure_;
};

}  // namespace petal::fuzz
