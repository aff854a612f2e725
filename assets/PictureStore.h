#pragma once
// Renders the pictures of the registry from the SVG artwork, once per size and pixel ratio.
#include <QHash>
#include <QPixmap>
#include <QSize>

#include "assets/Pictures.h"

namespace petal {

class PictureStore {
public:
    // A picture drawn to fill a rectangle of logicalSize pixels on a screen of ratio dpr.
    QPixmap pixmap(PictureId id, QSize logicalSize, qreal dpr);
    // The picture at its nominal size.
    QPixmap pixmap(PictureId id, qreal dpr);
    // Drawn directly, without the cache (tools and tests).
    static QImage render(PictureId id, QSize pixelSize);

private:
    struct Key {
        PictureId id;
        int w, h;
        int dprPercent;
        bool operator==(const Key&) const = default;
    };
    friend size_t qHash(const Key& k, size_t seed) {
        return qHashMulti(seed, k.id, k.w, k.h, k.dprPercent);
    }
    QHash<Key, QPixmap> cache_;
};

}  // namespace petal
