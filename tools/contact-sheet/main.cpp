// Renders every picture of the registry at 1x and at 2x, each labelled with its index and
// name, onto one PNG: the place where a review of the artwork starts.
// Usage: petalgarden-contact-sheet [out.png]   (default: contact-sheet.png in the build folder;
//        QT_QPA_PLATFORM=offscreen works)
#include <QElapsedTimer>
#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QString>
#include <cstdio>
#include <vector>

#include "assets/PictureStore.h"
#include "assets/Pictures.h"

using namespace petal;

namespace {

constexpr int kMargin = 12;
constexpr int kGap = 10;
constexpr int kLabel = 16;
constexpr int kRowWidth = 1900;

struct Cell {
    PictureId id;
    QImage one, two;
    QRect at;  // where the cell stands on the sheet
};

QString label(PictureId id) {
    const PictureInfo& info = pictureInfo(id);
    return QStringLiteral("%1 %2").arg(id).arg(QString::fromUtf8(info.name.data(), info.name.size()));
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    const QString out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(PETAL_BUILD_DIR "/contact-sheet.png");

    PictureStore store;
    std::vector<Cell> cells;
    QElapsedTimer timer;
    timer.start();
    for (PictureId id = 0; id < pic::Count; ++id) cells.push_back({id, store.pixmap(id, 1.0).toImage(), {}, {}});
    const qint64 oneMs = timer.restart();
    for (Cell& c : cells) c.two = store.pixmap(c.id, 2.0).toImage();
    const qint64 twoMs = timer.elapsed();
    std::printf("rendered %d pictures: %lld ms at 1x, %lld ms at 2x\n", pic::Count,
                static_cast<long long>(oneMs), static_cast<long long>(twoMs));

    QFont font;
    font.setPixelSize(11);
    const QFontMetrics metrics(font);

    // Flow the cells into rows: 1x picture, then the 2x one, label underneath.
    int x = kMargin, y = kMargin, rowHeight = 0, width = 0;
    for (Cell& c : cells) {
        const QSize one = c.one.deviceIndependentSize().toSize();
        const int w = qMax(one.width() + kGap + c.two.width(), metrics.horizontalAdvance(label(c.id)));
        const int h = qMax(one.height(), c.two.height()) + kLabel;
        if (x > kMargin && x + w > kRowWidth) {
            x = kMargin;
            y += rowHeight + kGap;
            rowHeight = 0;
        }
        c.at = QRect(x, y, w, h);
        x += w + 2 * kGap;
        rowHeight = qMax(rowHeight, h);
        width = qMax(width, c.at.right() + kMargin);
    }
    QImage sheet(width, y + rowHeight + kMargin, QImage::Format_RGB32);
    sheet.fill(QColor(15, 47, 32));  // the table's felt, so pictures are judged where they stand
    QPainter p(&sheet);
    p.setFont(font);
    for (const Cell& c : cells) {
        const QSize one = c.one.deviceIndependentSize().toSize();
        QImage oneAt1 = c.one;
        oneAt1.setDevicePixelRatio(1.0);
        QImage twoAt1 = c.two;
        twoAt1.setDevicePixelRatio(1.0);  // drawn pixel for pixel, to show the 2x detail
        p.drawImage(c.at.topLeft(), oneAt1);
        p.drawImage(c.at.topLeft() + QPoint(one.width() + kGap, 0), twoAt1);
        p.setPen(QColor(238, 216, 140));
        p.drawText(QRect(c.at.left(), c.at.bottom() - kLabel + 2, c.at.width(), kLabel),
                   Qt::AlignLeft | Qt::AlignVCenter, label(c.id));
    }
    p.end();
    if (!sheet.save(out)) {
        std::fprintf(stderr, "could not write %s\n", qPrintable(out));
        return 1;
    }
    std::printf("wrote %s (%dx%d)\n", qPrintable(out), sheet.width(), sheet.height());
    return 0;
}
