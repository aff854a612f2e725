#pragma once
// The setup dialog's model: game type, rounds, yaku, play mode and the computer to play
// against, their validation, and the reset of a running game. Made anew at each opening, so
// each starts from its built state.
#include <array>
#include <cstdint>
#include <string>

#include "platform/Form.h"
#include "platform/Words.h"

namespace petal {

class FrmMain;

struct SetupTextBox {
    std::string Text;
    bool Enabled = false;
    std::uint32_t BackColor = 0;  // blue-green-red, or a system colour code
    std::size_t MaxLength = 0;
};

class FrmSetup : public Form {
public:
    static constexpr std::uint32_t kButtonFace = 0x8000000F;  // the system's button face colour
    static constexpr std::uint32_t kWhite = 0xFFFFFF;
    static constexpr std::uint32_t kGrey = 0xC0C0C0;
    // The join box takes any host name (at most 253 characters) or address, with a port.
    static constexpr std::size_t kHostLength = 260;
    enum class Field { None, Rounds, HostIP };
    static constexpr const char* kNoAddress = PETAL_TR(
        "core",
        "The host's address cannot be read.  Type a name, an IPv4 address or an IPv6 address, and a port after a "
        "colon if it is not 4800: for example 192.0.2.7, host.example:5000 or [2001:db8::7]:5000.");

    explicit FrmSetup(FrmMain& f);
    const char* formName() const override { return "frmSetup"; }

    std::array<bool, 2> optGameType{true, false};
    std::array<bool, 3> optGame{true, false, false};
    bool lblRoundsEnabled = false;
    SetupTextBox txtRounds;
    int chkUseYaku = 1;
    SetupTextBox txtHostIP;
    // Ours: the standard computer or the strong one, kept in the options file of our own; it
    // plays in single play only, so it is offered only there.
    std::array<bool, 2> optComputer{true, false};
    bool computerEnabled = true;
    // Ours: a host opens its port on the home router, for a friend on the internet; offered
    // while hosting is chosen.
    int chkRouterPort = 0;
    bool routerPortEnabled = false;
    Field mInvalidControl = Field::None;
    Field focus = Field::None;  // where the view puts the focus
    bool mSetupOK = false;
    bool mLoading = false;

    void Form_Load() override;
    void Form_Activate() override { mLoading = false; }
    void Form_Unload() override;

    // A click on an option button: selecting one that is not yet selected raises its handler.
    void selectGameType(int index);
    void selectGame(int index);
    void selectComputer(int index) { optComputer = {index == 0, index == 1}; }
    void optGameType_Click(int Index);
    void optGame_Click(int Index);
    // Digits and backspace pass; any other key is swallowed (0).
    static int txtRounds_KeyPress(int KeyAscii);
    // The user's edit of a box, which holds at most MaxLength characters.
    void setText(SetupTextBox& box, const std::string& text);
    bool FormValidation();
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(); }

private:
    int selectedPlayMode() const;
    void writeChoices(int playMode);

    FrmMain& f_;
};

}  // namespace petal
