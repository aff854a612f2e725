// petalgarden-icons OUTDIR NAME: the application icon as PNGs of the sizes a desktop's icon
// theme holds, in OUTDIR/<n>x<n>/apps/NAME.png, ready to install into the hicolor theme.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <cstdio>

#include "assets/PictureStore.h"
#include "assets/Pictures.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: petalgarden-icons OUTDIR NAME\n");
        return 2;
    }
    QGuiApplication app(argc, argv);
    const QString out = QString::fromLocal8Bit(argv[1]);
    const QString name = QString::fromLocal8Bit(argv[2]);
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QString folder = QStringLiteral("%1/%2x%2/apps").arg(out).arg(size);
        const QString file = folder + QLatin1Char('/') + name + QStringLiteral(".png");
        if (!QDir().mkpath(folder) || !petal::PictureStore::render(petal::pic::AppIcon, QSize(size, size)).save(file)) {
            std::fprintf(stderr, "petalgarden-icons: cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
