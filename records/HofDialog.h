#pragma once
// Draws the Hall of Fame form: its title picture, the ten rows and the three buttons.
#include <array>

#include "platform/qt/FormDialog.h"

class QLabel;
class QPushButton;

namespace petal {

class FrmHOF;
class PictureStore;
class QtHost;

class HofDialog : public FormDialog {
    Q_OBJECT
public:
    HofDialog(FrmHOF& form, QtHost& host, PictureStore& pictures, QWidget* parent);
    void reject() override;

private:
    void sync() override;
    int columnWidth(int column, const QFont& heading) const;

    FrmHOF& form_;
    QLabel* singleTitle_;
    QLabel* tournamentTitle_;
    std::array<std::array<QLabel*, 11>, 7> cells_{};
    QPushButton* prev_;
    QPushButton* next_;
};

}  // namespace petal
