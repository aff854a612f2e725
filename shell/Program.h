#pragma once
// The whole program as the core holds it: the globals, the Hall of Fame and the main form.
#include "cards/Globals.h"
#include "platform/Host.h"
#include "records/HallOfFame.h"
#include "shell/FrmMain.h"
#include "shell/FrmSplash.h"

namespace petal {

class Program {
public:
    explicit Program(Host& host) : host(host), hof(host), frmMain(host, g, hof) {}

    // Start-up: the Hall of Fame opens before anything is shown; then the splash, shown
    // modally, shows the main form from its own load and leaves by itself. Files that had to
    // leave the program's folder are told of first, before either file is read.
    void Main() {
        if (const std::string moved = host.filesMoved(); !moved.empty())
            host.msgBox({moved, "Petalgarden", MsgIcon::Information, MsgButtons::OK});
        hof.OpenHallOfFame();
        FrmSplash frmSplash(frmMain);
        host.showModal(frmSplash);
    }

    Host& host;
    Globals g;
    HallOfFame hof;
    FrmMain frmMain;
};

}  // namespace petal
