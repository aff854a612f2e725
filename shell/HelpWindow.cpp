#include "shell/HelpWindow.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextDocument>

#include "platform/Words.h"
#include "platform/qt/Language.h"

namespace petal {

HelpWindow::HelpWindow(QWidget* parent) : QTextBrowser(parent) {
    setWindowFlag(Qt::Window);
    setOpenExternalLinks(true);
    resize(820, 720);
}

void HelpWindow::showPage(const QString& file) {
    setWindowTitle(Language::core(PETAL_TR("core", "Petalgarden Help")));
    const QUrl page = QUrl::fromLocalFile(file);
    if (source() != page) setSource(page);
    show();
    raise();
    activateWindow();
}

QVariant HelpWindow::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource || !name.path().endsWith(QStringLiteral(".svg")))
        return QTextBrowser::loadResource(type, name);
    QSvgRenderer svg(QTextBrowser::loadResource(QTextDocument::UnknownResource, name).toByteArray());
    if (!svg.isValid()) return {};
    constexpr int kScale = 3;
    QImage image(svg.defaultSize() * kScale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    svg.render(&painter);
    painter.end();
    image.setDevicePixelRatio(kScale);
    return image;
}

}  // namespace petal
