#pragma once
// The chat of a network game: the conversation, the line being typed, Send and Close over a
// picture. A line received stands behind ">>>", a line sent stands bare. Each opening makes a
// fresh form, so the conversation ends with the form.
#include <string>

#include "assets/Pictures.h"
#include "engine/table_view/Controls.h"
#include "platform/Form.h"

namespace petal {

class FrmMain;

class FrmPetalChat : public Form {
public:
    static constexpr std::size_t kMaxLine = 200;  // characters a typed line may hold
    static constexpr int kKeyEnter = 13;
    static constexpr int kKeyEscape = 27;
    // The controls that can hold the focus; the picture cannot.
    enum class Focus { txtMsg, lstChat, cmdSend, cmdClose };

    explicit FrmPetalChat(FrmMain& f);
    const char* formName() const override { return "frmPetalChat"; }

    ListBox lstChat;
    TextBox txtMsg;
    Button cmdSend;
    Button cmdClose;
    PictureBox Picture1;
    // The form's active control: the view reports the user's moves of the focus, and puts the
    // focus wherever the form moves it.
    Focus ActiveControl = Focus::txtMsg;

    void Form_Load() override;

    // A line from the other player, behind the marker; the 15th line starts the scrolling.
    void receiveLine(const std::string& text);

    // The user's edit of the text box, cut to its length.
    void setTxtMsg(const std::string& text);
    void cmdSend_Click();
    void cmdClose_Click() { Unload(); }
    // A key typed while the text box has the focus: returns the key, or 0 when it is swallowed.
    int txtMsg_KeyPress(int KeyAscii);
    // Every key typed in the form comes here first.
    void Form_KeyPress(int KeyAscii);
    void lstChat_DblClick();
    void Picture1_Click() { ActiveControl = Focus::cmdClose; }

private:
    void setText(std::string text);  // the box's text changed, by the user or by the form
    void txtMsg_Change();
    // From the 15th line on, the last lines stand in view.
    void scrollFrom(int count);

    FrmMain& f_;
    bool sending_ = false;
};

}  // namespace petal
