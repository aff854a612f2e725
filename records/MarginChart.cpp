#include "records/MarginChart.h"

#include <QPainter>
#include <algorithm>
#include <cstdlib>

#include "records/StatsFigures.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"

namespace petal {

int chartScale(const std::vector<int>& margins) {
    int largest = 0;
    for (const int m : margins) largest = std::max(largest, std::abs(m));
    for (int step = 1;; step *= 10)
        for (const int n : {10, 20, 25, 50})
            if (n * step >= largest) return n * step;
}

MarginChart::MarginChart(QWidget* parent) : QWidget(parent) {
    setMinimumSize(320, 140);
    setAccessibleName(Language::core(PETAL_TR("core", "Margin chart")));
}

void MarginChart::setMargins(std::vector<int> margins) {
    margins_ = std::move(margins);
    update();
}

void MarginChart::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing, false);
    p.fillRect(rect(), palette().base());
    const QFontMetrics fm = fontMetrics();
    const int scale = chartScale(margins_);
    const QString top = QStringLiteral("+%1").arg(scale), bottom = QStringLiteral("\u2212%1").arg(scale);
    const int left = std::max(fm.horizontalAdvance(top), fm.horizontalAdvance(bottom)) + 8;
    const QRect plot(left, fm.height() / 2 + 2, width() - left - 6, height() - fm.height() - 6);
    const int zero = plot.top() + plot.height() / 2;
    const auto yOf = [&](int margin) { return zero - margin * (plot.height() / 2) / scale; };

    p.setPen(palette().color(QPalette::Mid));
    p.drawRect(plot.adjusted(0, 0, -1, -1));
    p.setPen(QPen(palette().color(QPalette::Mid), 1, Qt::DotLine));
    p.drawLine(plot.left(), yOf(scale / 2), plot.right(), yOf(scale / 2));
    p.drawLine(plot.left(), yOf(-scale / 2), plot.right(), yOf(-scale / 2));
    p.setPen(palette().color(QPalette::Text));
    p.drawLine(plot.left(), zero, plot.right(), zero);
    const QRect labels(0, 0, left - 4, fm.height());
    p.drawText(labels.translated(0, plot.top() - fm.height() / 2), Qt::AlignRight | Qt::AlignVCenter, top);
    p.drawText(labels.translated(0, zero - fm.height() / 2), Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("0"));
    p.drawText(labels.translated(0, plot.bottom() - fm.height() / 2), Qt::AlignRight | Qt::AlignVCenter, bottom);
    if (margins_.empty()) {
        p.drawText(plot, Qt::AlignCenter, Language::core(PETAL_TR("core", "No games yet")));
        return;
    }

    // Every game has its place of the fifty, so a bar keeps its width as the record grows.
    const double slot = static_cast<double>(plot.width() - 2) / StatsFigures::kChartGames;
    const int bar = std::max(2, static_cast<int>(slot * 0.7));
    for (std::size_t i = 0; i < margins_.size(); ++i) {
        const int x = plot.left() + 1 + static_cast<int>(slot * static_cast<double>(i) + (slot - bar) / 2);
        const int m = margins_[i];
        if (m == 0) {
            p.fillRect(x, zero - 2, bar, 5, QColor(0x80, 0x80, 0x80));
            continue;
        }
        const int y = yOf(m);
        p.fillRect(QRect(QPoint(x, std::min(y, zero)), QPoint(x + bar - 1, std::max(y, zero))),
                   m > 0 ? QColor(0x2E, 0x7D, 0x32) : QColor(0xC6, 0x28, 0x28));
    }
}

}  // namespace petal
