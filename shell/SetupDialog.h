#pragma once
// Draws the setup model and forwards clicks, typing and the two buttons.
#include "platform/qt/FormDialog.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace petal {

class FrmSetup;
class PictureStore;
class QtHost;

class SetupDialog : public FormDialog {
    Q_OBJECT
public:
    SetupDialog(FrmSetup& form, QtHost& host, PictureStore& pictures, QWidget* parent);
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void sync() override;

    FrmSetup& form_;
    QRadioButton* gameType_[2];
    QRadioButton* game_[3];
    QLabel* roundsLabel_;
    QLineEdit* rounds_;
    QCheckBox* yaku_;
    QCheckBox* routerPort_;
    QLineEdit* hostIP_;
    QWidget* computerRow_;
    QRadioButton* computer_[2];
};

}  // namespace petal
