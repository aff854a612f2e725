#include "net/FrmPetalChat.h"

#include "net/MessageFramer.h"
#include "shell/FrmMain.h"
#include "platform/Words.h"

namespace petal {

namespace {

constexpr const char* kMarker = ">>>";
constexpr int kScrollLines = 12;  // how many of the last lines the scrolling keeps in view

// The first `count` characters of UTF-8 text, never cutting one in two.
std::string firstCharacters(const std::string& text, std::size_t count) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool startsCharacter = (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
        if (startsCharacter && ++characters > count) return text.substr(0, i);
    }
    return text;
}

}  // namespace

FrmPetalChat::FrmPetalChat(FrmMain& f) : f_(f) {
    cmdSend.Caption = PETAL_TR("core", "Send");
    cmdSend.Enabled = false;
    cmdClose.Caption = PETAL_TR("core", "Close");
    Picture1.Picture = pic::TableTop;
}

void FrmPetalChat::Form_Load() { Caption = PETAL_TR("core", "Petalgarden Chat"); }

void FrmPetalChat::receiveLine(const std::string& text) {
    lstChat.AddItem(kMarker + text);
    if (lstChat.ListCount() > 14) scrollFrom(lstChat.ListCount());
}

void FrmPetalChat::scrollFrom(int count) { lstChat.TopIndex = count - kScrollLines; }

void FrmPetalChat::setTxtMsg(const std::string& text) { setText(firstCharacters(text, kMaxLine)); }

void FrmPetalChat::setText(std::string text) {
    if (text == txtMsg.Text) return;
    txtMsg.Text = std::move(text);
    txtMsg_Change();
}

void FrmPetalChat::txtMsg_Change() {
    if (!cmdSend.Enabled && !txtMsg.Text.empty()) cmdSend.Enabled = true;
    else if (cmdSend.Enabled && txtMsg.Text.empty()) cmdSend.Enabled = false;
}

void FrmPetalChat::cmdSend_Click() {
    // The send waits for the line to leave, and input goes on meanwhile: a second press of
    // Send would send the same line again.
    if (sending_ || !cmdSend.Enabled) return;
    sending_ = true;
    struct Reset {
        bool& flag;
        ~Reset() { flag = false; }
    } reset{sending_};
    lstChat.AddItem(txtMsg.Text);
    if (lstChat.ListCount() >= 15) scrollFrom(lstChat.ListCount());
    f_.sendToPeer("CHAT," + chatText(txtMsg.Text));
    setText("");
    ActiveControl = Focus::txtMsg;
    cmdSend.Enabled = false;
}

int FrmPetalChat::txtMsg_KeyPress(int KeyAscii) {
    if (KeyAscii == kKeyEnter) {
        if (!cmdSend.Enabled) return KeyAscii;
        cmdSend_Click();
        return 0;
    }
    if (KeyAscii == kKeyEscape) {
        if (!txtMsg.Text.empty()) setText("");
        else cmdClose_Click();
        return 0;
    }
    return KeyAscii;
}

void FrmPetalChat::Form_KeyPress(int) {
    if (ActiveControl != Focus::txtMsg) cmdClose_Click();
}

void FrmPetalChat::lstChat_DblClick() {
    if (lstChat.ListCount() == 0 || lstChat.ListIndex < 0 || lstChat.ListIndex >= lstChat.ListCount()) return;
    setText(lstChat.List[lstChat.ListIndex]);
}

}  // namespace petal
