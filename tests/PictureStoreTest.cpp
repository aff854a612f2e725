// The artwork behind the picture registry: every entry renders a drawing at its size at
// 1x and 2x, no two faces are alike, and the derived pictures follow the yaku index scheme.
#include <gtest/gtest.h>

#include <QImage>
#include <set>

#include "assets/PictureStore.h"
#include "assets/Pictures.h"

namespace petal::test {
namespace {

int distinctColours(const QImage& image) {
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) colours.insert(image.pixel(x, y));
    return static_cast<int>(colours.size());
}

// Pixels whose colour differs clearly, so that antialiasing noise does not count.
int differingPixels(const QImage& a, const QImage& b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            if (qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q)) > 60) ++count;
        }
    return count;
}

TEST(PictureStoreTest, EveryEntryRendersAtItsSizeAt1xAnd2xAndNoTwoFacesAreAlike) {
    PictureStore store;
    for (PictureId id = 0; id < pic::Count; ++id) {
        const PictureInfo& info = pictureInfo(id);
        for (const qreal dpr : {1.0, 2.0}) {
            const QPixmap pixmap = store.pixmap(id, dpr);
            EXPECT_EQ(pixmap.size(), QSize(info.width, info.height) * dpr) << info.name << " at " << dpr;
            EXPECT_EQ(pixmap.deviceIndependentSize().toSize(), QSize(info.width, info.height)) << info.name;
            // A drawing, not an empty or single-colour square.
            EXPECT_GT(distinctColours(pixmap.toImage()), 8) << info.name << " at " << dpr;
        }
    }
    std::vector<QImage> faces;
    for (int i = 0; i < 48; ++i) faces.push_back(PictureStore::render(pic::card(i), QSize(50, 80)));
    for (int i = 0; i < 48; ++i)
        for (int j = i + 1; j < 48; ++j)
            EXPECT_GT(differingPixels(faces[i], faces[j]), 15) << "cards " << i << " and " << j;
}

TEST(PictureStoreTest, ThumbnailsAndYakuPicturesShowTheirSlotsCard) {
    const QSize thumb(25, 40);
    for (int slot = 0; slot < 24; ++slot) {
        const QImage face = PictureStore::render(pic::card(yakuSlotCard(slot)), thumb);
        const QImage colour = PictureStore::render(pic::thumbColour(slot), thumb);
        const QImage grey = PictureStore::render(pic::thumbGrey(slot), thumb);
        EXPECT_EQ(colour, face) << "slot " << slot;
        EXPECT_GT(differingPixels(grey, colour), 20) << "slot " << slot;
        const QImage large = PictureStore::render(pic::card(48 + slot), QSize(50, 80));
        for (const QImage& image : {grey, large})
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x) {
                    const QRgb p = image.pixel(x, y);
                    ASSERT_TRUE(qRed(p) == qGreen(p) && qGreen(p) == qBlue(p)) << "slot " << slot;
                }
    }
    EXPECT_EQ(PictureStore::render(pic::ThumbBack, thumb), PictureStore::render(pic::CardBack, thumb));
}

}  // namespace
}  // namespace petal::test
