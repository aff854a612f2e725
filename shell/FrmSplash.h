#pragma once
// The splash: at start-up it shows the main form from its own load and leaves by itself at the
// third tick of its timer; opened from Help → About it stays until the user closes it.
#include <array>
#include <cstdint>
#include <string>

#include "assets/Pictures.h"
#include "engine/table_view/Controls.h"
#include "platform/Form.h"
#include "platform/Timer.h"

namespace petal {

class FrmMain;

class FrmSplash : public Form {
public:
    static constexpr std::uint32_t kBlue = 0xFF0000;  // blue-green-red
    static constexpr std::uint32_t kBlack = 0x000000;

    explicit FrmSplash(FrmMain& f);
    const char* formName() const override { return "frmSplash"; }

    // Set by the caller before the form loads: false at start-up, true as the About box.
    bool mAboutMode = false;
    int mTickCount = 0;
    Timer Timer1;

    PictureId Image1 = pic::SplashLeft;
    PictureId Image2 = pic::SplashRight;
    // Created by, the author, Release date, the date, Special Thanks to, those thanked.
    std::array<Label, 6> Label1;
    Label lblRights;  // the rights line in fraComments
    Label lblVersion;
    Label lblPlatform;
    Label lblCloseSplash;

    void Form_Load() override;
    void Form_Unload() override { Timer1.setEnabled(false); }
    void Timer1_Timer();

    // Every way of closing by hand, in either life.
    void Form_KeyPress(int /*KeyAscii*/) { Unload(true); }
    void Frame1_Click() { Unload(true); }
    void lblCloseSplash_Click() { Unload(true); }

    // The hint turns blue under the mouse and back to black when it moves onto the surface or
    // the credits; the pictures have no handler, so moving onto them leaves it as it is.
    void lblCloseSplash_MouseMove() { lblCloseSplash.ForeColor = kBlue; }
    void Form_MouseMove() { unhighlight(); }
    void Frame1_MouseMove() { unhighlight(); }
    void Label1_MouseMove(int /*Index*/) { unhighlight(); }

private:
    void unhighlight();

    FrmMain& f_;
};

}  // namespace petal
