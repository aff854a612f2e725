#pragma once
// The help window: the help page that comes with the program, in a window of its own beside the
// table; the game goes on behind it. Links within the page are followed here, links out of it
// open in the desktop's browser.
#include <QTextBrowser>

namespace petal {

class HelpWindow : public QTextBrowser {
    Q_OBJECT
public:
    explicit HelpWindow(QWidget* parent);
    void showPage(const QString& file);

protected:
    // Pictures of the deck are drawn from their SVG at three times their size, so that they
    // stay sharp at any scale the page and the screen give them.
    QVariant loadResource(int type, const QUrl& name) override;
};

}  // namespace petal
