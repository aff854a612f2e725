#pragma once
// Draws the network's wait: its caption, its line of text, on a host's wait the addresses at
// which a friend can join (each with a Copy button) and what the router said, three cards of
// the deck that come and go as the model's animation steps, and Cancel.
#include <array>
#include <string>
#include <vector>

#include "platform/qt/FormDialog.h"

class QGridLayout;
class QLabel;
class QWidget;

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
    void showPlaces();

    FrmConnectionStatus& form_;
    QLabel* message_;
    QWidget* places_;
    QGridLayout* placeRows_;
    std::vector<std::string> shownPlaces_;
    QLabel* detail_;
    std::array<QLabel*, 3> cards_{};
};

}  // namespace petal
