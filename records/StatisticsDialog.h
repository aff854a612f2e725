#pragma once
// Draws the statistics form: the choice of record, its figures and yaku, the chart of its last
// margins, and the buttons.
#include <array>
#include <utility>

#include "platform/qt/FormDialog.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace petal {

class FrmStatistics;
class MarginChart;
class QtHost;

class StatisticsDialog : public FormDialog {
    Q_OBJECT
public:
    StatisticsDialog(FrmStatistics& form, QtHost& host, QWidget* parent);
    void reject() override;

private:
    void sync() override;

    FrmStatistics& form_;
    QComboBox* record_;
    std::array<std::pair<QLabel*, QLabel*>, 9> figures_{};
    std::array<std::pair<QLabel*, QLabel*>, 8> yaku_{};
    QLabel* chartCaption_;
    MarginChart* chart_;
    QPushButton* reset_;
};

}  // namespace petal
