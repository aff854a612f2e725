#pragma once
// Draws the setup model and forwards clicks, typing and the two buttons.
#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace petal {

class FrmSetup;
class PictureStore;
class QtHost;

class SetupDialog : public QDialog {
    Q_OBJECT
public:
    SetupDialog(FrmSetup& form, QtHost& host, PictureStore& pictures, QWidget* parent);
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void sync();
    void forward(const std::function<void()>& handler);

    FrmSetup& form_;
    QtHost& host_;
    QRadioButton* gameType_[2];
    QRadioButton* game_[3];
    QLabel* roundsLabel_;
    QLineEdit* rounds_;
    QCheckBox* yaku_;
    QLineEdit* hostIP_;
};

}  // namespace petal
