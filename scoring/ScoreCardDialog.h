#pragma once
// Draws the score card model: the heading, the grid, and OK.
#include "platform/qt/FormDialog.h"

class QLabel;
class QTableWidget;

namespace petal {

class FrmScoreCard;
class QtHost;

class ScoreCardDialog : public FormDialog {
    Q_OBJECT
public:
    ScoreCardDialog(FrmScoreCard& form, QtHost& host, QWidget* parent);
    void reject() override;

private:
    void fill();

    FrmScoreCard& form_;
    QLabel* heading_;
    QTableWidget* grid_;
};

}  // namespace petal
