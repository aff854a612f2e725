#include "records/HofDialog.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "assets/PictureStore.h"
#include "records/FrmHOF.h"
#include "platform/qt/QtHost.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"

namespace petal {

HofDialog::HofDialog(FrmHOF& form, QtHost& host, PictureStore& pictures, QWidget* parent)
    : FormDialog(form, host, parent), form_(form) {
    setWindowTitle(Language::core(form.Caption));
    auto* layout = new QVBoxLayout(this);
    const qreal dpr = devicePixelRatioF();
    singleTitle_ = new QLabel(this);
    singleTitle_->setPixmap(pictures.pixmap(pic::HofSingleTitle, dpr));
    tournamentTitle_ = new QLabel(this);
    tournamentTitle_->setPixmap(pictures.pixmap(pic::HofTournamentTitle, dpr));
    layout->addWidget(singleTitle_, 0, Qt::AlignHCenter);
    layout->addWidget(tournamentTitle_, 0, Qt::AlignHCenter);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(14);
    QFont bold = font();
    bold.setBold(true);
    for (int c = 0; c < FrmHOF::kColumns; ++c) {
        const int width = columnWidth(c, bold);
        for (int r = 0; r < 11; ++r) {
            auto* label = new QLabel(this);
            label->setFixedWidth(width);
            if (r == 0) label->setFont(bold);
            label->setAlignment((c == 0 ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter);
            grid->addWidget(label, r, c);
            cells_[c][r] = label;
        }
    }
    layout->addLayout(grid);

    auto* buttons = new QHBoxLayout;
    prev_ = new QPushButton(Language::core(PETAL_TR("core", "Previous")), this);
    next_ = new QPushButton(Language::core(PETAL_TR("core", "Next")), this);
    auto* close = new QPushButton(Language::core(PETAL_TR("core", "Close")), this);
    buttons->addStretch();
    for (QPushButton* b : {prev_, next_, close}) buttons->addWidget(b);
    layout->addLayout(buttons);
    onClick(prev_, [this] { form_.cmdPrev_Click(); });
    onClick(next_, [this] { form_.cmdNext_Click(); });
    onClick(close, [this] { form_.cmdClose_Click(); });
    sync();
    setFixedSize(sizeHint());
}

// As wide as the widest text the column can hold (a name of twenty wide letters, a date, a
// 16-bit number, two of them under RND), so that the window keeps one width whatever the rows
// hold: the records keep rows with other values out.
int HofDialog::columnWidth(int column, const QFont& heading) const {
    static const QString kWidest[FrmHOF::kColumns] = {QString(20, QLatin1Char('W')), QStringLiteral("00/00/0000"),
                                                      QStringLiteral("-32768"),      QStringLiteral("-32768"),
                                                      QStringLiteral("-32768/-32768"),       QStringLiteral("-32768"),
                                                      QStringLiteral("-32768")};
    const int value = fontMetrics().horizontalAdvance(kWidest[column]);
    const int title = QFontMetrics(heading).horizontalAdvance(Language::core(form_.cells[column][0]));
    return std::max(value, title) + 2;
}

void HofDialog::sync() {
    singleTitle_->setVisible(form_.imgSingCaptionVisible);
    tournamentTitle_->setVisible(form_.imgTourCaptionVisible);
    for (int c = 0; c < FrmHOF::kColumns; ++c)
        for (int r = 0; r < 11; ++r) cells_[c][r]->setText(r == 0 ? Language::core(form_.cells[c][r]) : QString::fromStdString(form_.cells[c][r]));
    prev_->setEnabled(form_.cmdPrevEnabled);
    next_->setEnabled(form_.cmdNextEnabled);
}

void HofDialog::reject() {
    forward([this] { form_.cmdClose_Click(); });
}

}  // namespace petal
