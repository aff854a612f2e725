#pragma once
// Renders the pictures of the registry from the SVG artwork, once per size and pixel ratio. A
// picture with words is drawn from <name>_<language>.svg where the language spoken has one.
#include <QCache>
#include <QHash>
#include <QLocale>
#include <QPixmap>
#include <QSizeF>

#include "assets/Pictures.h"

namespace petal {

class PictureStore {
public:
    // A picture drawn to fill a rectangle of logicalSize pixels on a screen of ratio dpr; the
    // rectangle's device pixels are rounded to whole ones.
    QPixmap pixmap(PictureId id, QSizeF logicalSize, qreal dpr);
    // The picture at its nominal size.
    QPixmap pixmap(PictureId id, qreal dpr);
    // The last rendering of a picture still kept, at whatever size; null if none.
    QPixmap latest(PictureId id) const;
    // Drawn directly, without the cache (tools and tests).
    static QImage render(PictureId id, QSize pixelSize);
    // How many renderings the store has made: what a repaint at a known size must not add to.
    int renderCount() const { return renders_; }

private:
    struct Key {
        PictureId id;
        int w, h;  // device pixels
        int dprPercent;
        QLocale::Language language;  // a picture with words has a drawing for each language
        bool operator==(const Key&) const = default;
    };
    friend size_t qHash(const Key& k, size_t seed) {
        return qHashMulti(seed, k.id, k.w, k.h, k.dprPercent, k.language);
    }
    // A table resized many times must not keep every size: the least recently drawn go first.
    static constexpr qsizetype kCacheKiB = 192 * 1024;
    QCache<Key, QPixmap> cache_{kCacheKiB};
    QHash<PictureId, Key> latest_;
    int renders_ = 0;
};

}  // namespace petal
