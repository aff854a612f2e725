#pragma once
// The whole program as the core holds it: the globals, the Hall of Fame and the main form.
#include "cards/Globals.h"
#include "records/HallOfFame.h"
#include "shell/FrmMain.h"

namespace petal {

class Host;

class Program {
public:
    explicit Program(Host& host) : host(host), hof(host), frmMain(host, g, hof) {}

    // Start-up: the Hall of Fame opens before anything is shown, then the main form loads.
    void Main() {
        hof.OpenHallOfFame();
        frmMain.Form_Load();
    }

    Host& host;
    Globals g;
    HallOfFame hof;
    FrmMain frmMain;
};

}  // namespace petal
