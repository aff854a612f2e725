#pragma once
// The margins of a record's last games as bars about a zero line, the oldest at the left: won
// games rise in green, lost games fall in red, a tie is a grey mark on the line.
#include <QWidget>
#include <vector>

namespace petal {

class MarginChart : public QWidget {
    Q_OBJECT
public:
    explicit MarginChart(QWidget* parent = nullptr);
    void setMargins(std::vector<int> margins);
    QSize sizeHint() const override { return {460, 180}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<int> margins_;
};

// The chart's reach above and below zero: a round number at or above the largest margin.
int chartScale(const std::vector<int>& margins);

}  // namespace petal
