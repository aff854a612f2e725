#include "shell/FrmSplash.h"

#include "platform/Host.h"
#include "shell/FrmMain.h"
#include "platform/Words.h"

namespace petal {

namespace {

constexpr const char* kCredits[6] = {PETAL_TR("core", "Created by"),        PETAL_TR("core", "The Petalgarden developers"),
                                     PETAL_TR("core", "Release date"),      PETAL_RELEASE_DATE,
                                     PETAL_TR("core", "Special Thanks to"), PETAL_TR("core", "Everyone who plays Petalgarden")};

std::string rightsLine(Host& host) {
    const std::string year = std::string(PETAL_RELEASE_DATE).substr(0, 4);
    return said(host, PETAL_TR("core", "Copyright \u00A9 %1 The Petalgarden developers. Free software under GPL-3.0-or-later."),
                {year});
}

}  // namespace

FrmSplash::FrmSplash(FrmMain& f) : Timer1(f.host, [this] { Timer1_Timer(); }, 1000), f_(f) {
    for (int i = 0; i < 6; ++i) Label1[i].Caption = kCredits[i];
    lblRights.Caption = rightsLine(f.host);
    lblCloseSplash.Caption = PETAL_TR("core", "Click Here to Close.....");
}

void FrmSplash::Form_Load() {
    if (!mAboutMode) {
        // Showing the main form loads it: its Form_Load runs inside this one.
        f_.Form_Load();
        f_.host.showMainForm();
    }
    Timer1.setEnabled(!mAboutMode);
    lblCloseSplash.Visible = mAboutMode;
    lblVersion.Caption = PETAL_VERSION;
    lblPlatform.Caption = PETAL_TR("core", "designed for Windows'98");
}

// Events run first, so that a click or a key can end the splash while the tick is running.
void FrmSplash::Timer1_Timer() {
    f_.host.doEvents();
    if (mTickCount < 2)
        ++mTickCount;
    else
        Unload();
}

void FrmSplash::unhighlight() {
    if (lblCloseSplash.ForeColor == kBlue) lblCloseSplash.ForeColor = kBlack;
}

}  // namespace petal
