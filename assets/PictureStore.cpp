#include "assets/PictureStore.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>

namespace petal {

namespace {

// The black-and-white yaku pictures. Plain luminance makes the reds and greens of the
// faces the same flat grey; a gentle contrast curve about mid-grey keeps the ink outlines
// and the paper apart so that the cards stay readable at thumbnail size.
QImage greyed(const QImage& colour) {
    QImage grey = colour.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < grey.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(grey.scanLine(y));
        for (int x = 0; x < grey.width(); ++x) {
            const QRgb c = line[x];
            const double luma = 0.299 * qRed(c) + 0.587 * qGreen(c) + 0.114 * qBlue(c);
            const int v = qBound(0, qRound((luma - 128.0) * 1.18 + 134.0), 255);
            line[x] = qRgba(v, v, v, qAlpha(c));
        }
    }
    return grey.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// Drawn when the artwork has no file for a picture, so that a missing picture shows plainly.
QImage placeholder(const PictureInfo& info, QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(90, 30, 110));
    QPainter p(&image);
    p.setPen(QPen(Qt::white, 1));
    p.drawRect(image.rect().adjusted(0, 0, -1, -1));
    p.drawText(image.rect(), Qt::AlignCenter | Qt::TextWrapAnywhere, QString::fromUtf8(info.name.data(), info.name.size()));
    return image;
}

}  // namespace

QImage PictureStore::render(PictureId id, QSize pixelSize) {
    const PictureInfo& info = pictureInfo(id);
    if (info.derivedFrom != NoPicture) {
        QImage source = render(info.derivedFrom, pixelSize);
        return info.grey ? greyed(source) : source;
    }
    const QString name = QString::fromUtf8(info.name.data(), info.name.size());
    const QString own = QStringLiteral(":/assets/svg/%1_%2.svg").arg(name, QLocale().name().section(QLatin1Char('_'), 0, 0));
    QSvgRenderer svg(QFile::exists(own) ? own : QStringLiteral(":/assets/svg/%1.svg").arg(name));
    if (!svg.isValid()) return placeholder(info, pixelSize);
    QImage image(pixelSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    svg.render(&p, QRectF(QPointF(0, 0), QSizeF(pixelSize)));
    return image;
}

QPixmap PictureStore::pixmap(PictureId id, QSizeF logicalSize, qreal dpr) {
    const QSize pixels = (logicalSize * dpr).toSize();
    const Key key{id, pixels.width(), pixels.height(), qRound(dpr * 100), QLocale().language()};
    latest_.insert(id, key);
    if (const QPixmap* kept = cache_.object(key)) return *kept;
    QPixmap pixmap = QPixmap::fromImage(render(id, pixels));
    pixmap.setDevicePixelRatio(dpr);
    ++renders_;
    const qsizetype kib = std::max<qsizetype>(1, qsizetype(pixels.width()) * pixels.height() * 4 / 1024);
    cache_.insert(key, new QPixmap(pixmap), kib);  // one larger than the whole cache is not kept
    return pixmap;
}

QPixmap PictureStore::latest(PictureId id) const {
    const auto it = latest_.constFind(id);
    if (it == latest_.constEnd()) return {};
    const QPixmap* kept = cache_.object(*it);
    return kept ? *kept : QPixmap();
}

QPixmap PictureStore::pixmap(PictureId id, qreal dpr) {
    const PictureInfo& info = pictureInfo(id);
    return pixmap(id, QSize(info.width, info.height), dpr);
}

}  // namespace petal
