#pragma once
// The whole program as the core holds it: the globals, the Hall of Fame and the main form.
#include "cards/Globals.h"
#include "platform/Host.h"
#include "records/HallOfFame.h"
#include "shell/FrmMain.h"
#include "shell/FrmSplash.h"
#include "shell/ReplayHost.h"
#include "shell/Resume.h"

namespace petal {

class Program {
public:
    explicit Program(Host& host)
        : host(host), gameHost(host), hof(host), frmMain(gameHost, g, hof), resume(frmMain, gameHost) {}

    // The program saves the game in progress and keeps each game's statistics; the headless
    // tools and most tests leave both off.
    void keepGames() { frmMain.journal.keep(true); }

    // Start-up: the Hall of Fame (and the statistics) open before anything is shown; then the
    // splash, shown modally, shows the main form from its own load and leaves by itself. A game
    // the last run left is offered once the table stands. Files that had to leave the
    // program's folder are told of first, before any of them is read.
    void Main() {
        if (const std::string moved = host.filesMoved(); !moved.empty())
            host.msgBox({moved, "Petalgarden", MsgIcon::Information, MsgButtons::OK});
        hof.OpenHallOfFame();
        if (frmMain.journal.keeping()) frmMain.stats.open();
        FrmSplash frmSplash(frmMain);
        host.showModal(frmSplash);
        if (frmMain.journal.keeping() && resume.found()) host.post([this] { resume.offer(); });
    }

    Host& host;
    ReplayHost gameHost;  // the main form's host: the program's own, or a replay's clock
    Globals g;
    HallOfFame hof;
    FrmMain frmMain;
    Resume resume;
};

}  // namespace petal
