#include "records/StatisticsDialog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "platform/qt/QtHost.h"
#include "records/FrmStatistics.h"
#include "records/MarginChart.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"

namespace petal {

namespace {

// A box of caption and value rows, the values right-aligned.
template <std::size_t N>
QGroupBox* rows(const QString& title, std::array<std::pair<QLabel*, QLabel*>, N>& labels, QWidget* parent) {
    auto* box = new QGroupBox(title, parent);
    auto* grid = new QGridLayout(box);
    grid->setHorizontalSpacing(18);
    for (std::size_t i = 0; i < N; ++i) {
        labels[i] = {new QLabel(box), new QLabel(box)};
        labels[i].second->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        labels[i].second->setMinimumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("0000.0")));
        grid->addWidget(labels[i].first, static_cast<int>(i), 0);
        grid->addWidget(labels[i].second, static_cast<int>(i), 1);
    }
    grid->setRowStretch(static_cast<int>(N), 1);
    return box;
}

}  // namespace

StatisticsDialog::StatisticsDialog(FrmStatistics& form, QtHost& host, QWidget* parent)
    : FormDialog(form, host, parent), form_(form) {
    setWindowTitle(Language::core(form.Caption));
    auto* layout = new QVBoxLayout(this);
    record_ = new QComboBox(this);
    record_->setAccessibleName(Language::core(PETAL_TR("core", "Record")));
    // The open list is a window of its own to a screen reader: it is named as the box is.
    record_->view()->setAccessibleName(record_->accessibleName());
    layout->addWidget(record_);
    auto* tables = new QHBoxLayout;
    tables->addWidget(rows(Language::core(PETAL_TR("core", "Games")), figures_, this), 3);
    tables->addWidget(rows(Language::core(PETAL_TR("core", "Yaku made")), yaku_, this), 2);
    layout->addLayout(tables);
    chartCaption_ = new QLabel(this);
    layout->addWidget(chartCaption_);
    chart_ = new MarginChart(this);
    layout->addWidget(chart_, 1);
    auto* buttons = new QHBoxLayout;
    reset_ = new QPushButton(Language::core(PETAL_TR("core", "&Reset Statistics...")), this);
    auto* close = new QPushButton(Language::core(PETAL_TR("core", "Close")), this);
    close->setDefault(true);
    buttons->addWidget(reset_);
    buttons->addStretch();
    buttons->addWidget(close);
    layout->addLayout(buttons);
    connect(record_, &QComboBox::activated, this, [this](int index) { forward([this, index] { form_.cboRecord_Click(index); }); });
    onClick(reset_, [this] { form_.cmdReset_Click(); });
    onClick(close, [this] { form_.cmdClose_Click(); });
    sync();
}

void StatisticsDialog::sync() {
    {
        const QSignalBlocker quiet(record_);
        record_->clear();
        for (const FrmStatistics::Record& r : form_.records) record_->addItem(Language::core(r.caption));
        record_->setCurrentIndex(form_.cboRecordIndex);
    }
    for (std::size_t i = 0; i < figures_.size(); ++i) {
        const bool shown = i < form_.figures.size();
        figures_[i].first->setText(shown ? Language::core(form_.figures[i].first) : QString());
        figures_[i].second->setText(shown ? QString::fromStdString(form_.figures[i].second) : QString());
    }
    for (std::size_t i = 0; i < yaku_.size(); ++i) {
        yaku_[i].first->setText(Language::core(form_.yakuMade[i].first));
        yaku_[i].second->setText(QString::fromStdString(form_.yakuMade[i].second));
    }
    chartCaption_->setText(Language::core(form_.chartCaption));
    chart_->setMargins(form_.chartMargins);
    reset_->setEnabled(form_.cmdResetEnabled);
}

void StatisticsDialog::reject() {
    forward([this] { form_.cmdClose_Click(); });
}

}  // namespace petal
