#pragma once
// Draws the network's wait: its caption, its line of text, three cards of the deck that come
// and go as the model's animation steps, and Cancel.
#include <array>

#include "platform/qt/FormDialog.h"

class QLabel;

namespace petal {

class FrmConnectionStatus;
class PictureStore;

class ConnectionStatusDialog : public FormDialog {
    Q_OBJECT
public:
    ConnectionStatusDialog(FrmConnectionStatus& form, QtHost& host, PictureStore& pictures, QWidget* parent);
    void reject() override;

protected:
    void sync() override;

private:
    FrmConnectionStatus& form_;
    QLabel* message_;
    QLabel* detail_;
    std::array<QLabel*, 3> cards_{};
};

}  // namespace petal
