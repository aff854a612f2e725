#include "scoring/ScoreCardDialog.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "scoring/FrmScoreCard.h"
#include "platform/qt/QtHost.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"

namespace petal {

namespace {
constexpr int kTwips = 15;
}

ScoreCardDialog::ScoreCardDialog(FrmScoreCard& form, QtHost& host, QWidget* parent)
    : FormDialog(form, host, parent), form_(form), heading_(new QLabel(this)), grid_(new QTableWidget(this)) {
    setWindowTitle(Language::core(PETAL_TR("core", "Score Card")));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 6);
    layout->setSpacing(1);
    QFont headingFont = heading_->font();
    headingFont.setPointSize(11);
    headingFont.setBold(true);
    heading_->setFont(headingFont);
    heading_->setAlignment(Qt::AlignCenter);
    heading_->setFixedHeight(FrmScoreCard::kLabelHeight / kTwips);
    layout->addWidget(heading_);
    grid_->horizontalHeader()->hide();
    grid_->verticalHeader()->hide();
    grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid_->setSelectionMode(QAbstractItemView::NoSelection);
    // Tab reaches the grid, so that a reader can go through its cells with the arrows.
    grid_->setFocusPolicy(Qt::TabFocus);
    grid_->setAccessibleName(Language::core(PETAL_TR("core", "Score card")));
    grid_->setTextElideMode(Qt::ElideNone);
    grid_->setWordWrap(false);
    grid_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layout->addWidget(grid_);
    auto* ok = new QPushButton(Language::core(PETAL_TR("core", "OK")), this);
    ok->setDefault(true);
    ok->setFixedWidth(80);
    layout->addWidget(ok, 0, Qt::AlignHCenter);
    onClick(ok, [this] { form_.cmdOK_Click(); });
    fill();
}

void ScoreCardDialog::fill() {
    heading_->setText(Language::core(form_.lblFormCaption));
    const int rows = static_cast<int>(form_.grid.size());
    grid_->setRowCount(rows);
    grid_->setColumnCount(3);
    for (int c = 0; c < 3; ++c) grid_->setColumnWidth(c, form_.colWidths.at(c) / kTwips);
    for (int r = 0; r < rows; ++r) {
        grid_->setRowHeight(r, form_.rowHeightMin / kTwips);
        for (int c = 0; c < 3; ++c) {
            const GridCell& cell = form_.grid[r][c];
            auto* item = new QTableWidgetItem(Language::core(cell.text));
            QFont font = item->font();
            font.setBold(cell.bold);
            font.setPointSize(cell.fontSize);
            item->setFont(font);
            const Qt::Alignment horizontal = cell.alignment == 4 ? Qt::AlignHCenter
                                             : cell.alignment == 7 ? Qt::AlignRight
                                                                   : (c == 0 ? Qt::AlignLeft : Qt::AlignRight);
            item->setTextAlignment(horizontal | Qt::AlignVCenter);
            // The first row and column are the grid's fixed ones, drawn as headings.
            const bool fixed = r == 0 || c == 0;
            const std::uint32_t bgr = fixed ? 0xC8D0D4 : cell.backColor;
            item->setBackground(QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF));
            grid_->setItem(r, c, item);
        }
    }
    grid_->setFixedSize(FrmScoreCard::kGridWidth / kTwips + 2, form_.gridHeight / kTwips);
    setFixedSize(sizeHint());
}

void ScoreCardDialog::reject() {
    forward([this] { form_.Unload(true); });
}

}  // namespace petal
