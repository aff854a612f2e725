#pragma once
// Draws the name form of a Hall of Fame entry and forwards the typing and the buttons.
#include "platform/qt/FormDialog.h"

class QLineEdit;
class QPushButton;

namespace petal {

class FrmHOFWinner;
class PictureStore;
class QtHost;

class HofWinnerDialog : public FormDialog {
    Q_OBJECT
public:
    HofWinnerDialog(FrmHOFWinner& form, QtHost& host, PictureStore& pictures, QWidget* parent);
    void reject() override;

private:
    FrmHOFWinner& form_;
    QLineEdit* name_;
    QPushButton* ok_;
};

}  // namespace petal
