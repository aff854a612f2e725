#pragma once
// Draws the score card model: the heading, the grid, and OK.
#include <QDialog>

class QLabel;
class QTableWidget;

namespace petal {

class FrmScoreCard;
class QtHost;

class ScoreCardDialog : public QDialog {
    Q_OBJECT
public:
    ScoreCardDialog(FrmScoreCard& form, QtHost& host, QWidget* parent);
    void reject() override;

private:
    void fill();

    FrmScoreCard& form_;
    QtHost& host_;
    QLabel* heading_;
    QTableWidget* grid_;
};

}  // namespace petal
