#pragma once
// The chat form's life: at most one at a time, made when the user opens it or a line comes,
// and dropped when it closes. A line that comes while no form is open opens one by itself.
#include <memory>
#include <string>

namespace petal {

class FrmMain;
class FrmPetalChat;

class Chat {
public:
    explicit Chat(FrmMain& f);
    ~Chat();

    // The menu's Chat: shows the form modally, with the lines that have come since it was made.
    void show();
    // The receive step: the line is added behind the marker, and a form that is not open opens
    // once the receiving handler has returned, so that the messages behind it are not held up.
    void receive(const std::string& line);
    // The form on screen, or the one made for a line and about to open; nullptr if none.
    FrmPetalChat* form() const;

private:
    void open(std::unique_ptr<FrmPetalChat> form);

    FrmMain& f_;
    FrmPetalChat* shown_ = nullptr;
    std::unique_ptr<FrmPetalChat> opening_;
};

}  // namespace petal
