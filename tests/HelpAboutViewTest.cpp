// The Help menu offscreen on the Qt host: F1 and Help → Help opening the help window beside the
// running game, the help page whole, and a missing help file told in a message box.
#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <filesystem>

#include "TableWindow.h"
#include "engine/table_view/TableView.h"
#include "shell/HelpWindow.h"

namespace petal::test {
namespace {

class HelpAbout : public ::testing::Test, protected TableWindow {
protected:
    // The help page and its pictures as the build lays them beside the program.
    void copyHelpBeside() {
        namespace fs = std::filesystem;
        const fs::path build = PETAL_BUILD_DIR;
        fs::copy_file(build / "PetalgardenHelp.html", dir.path() / "PetalgardenHelp.html");
        fs::copy(build / "help-pictures", dir.path() / "help-pictures", fs::copy_options::recursive);
    }
    QAction* action(const char* name) const { return window.findChild<QAction*>(QString::fromLatin1(name)); }
    // Runs `act` once a modal window stands, while the caller waits in it.
    static void whenModal(std::function<void(QWidget*)> act) {
        QTimer::singleShot(50, [act] {
            QWidget* modal = QApplication::activeModalWidget();
            ASSERT_NE(modal, nullptr);
            act(modal);
        });
    }
};

TEST_F(HelpAbout, F1AndHelpHelpOpenTheHelpWindowBesideTheGame) {
    copyHelpBeside();
    QTest::keyClick(window.table(), Qt::Key_F1);
    HelpWindow* help = window.helpWindow();
    ASSERT_NE(help, nullptr);
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(help->source(), QUrl::fromLocalFile(QString::fromStdString(program.frmMain.helpFile)));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "the game must go on behind the help";
    help->close();

    action("mnuHHelp")->trigger();  // presses F1 for the user
    QTest::qWait(50);
    EXPECT_TRUE(window.helpWindow()->isVisible());
}

// Every picture of the page renders, and every link within it has its target.
TEST_F(HelpAbout, TheHelpPageIsWhole) {
    copyHelpBeside();
    QTest::keyClick(window.table(), Qt::Key_F1);
    HelpWindow* help = window.helpWindow();
    ASSERT_NE(help, nullptr);
    QFile file(QString::fromStdString(program.frmMain.helpFile));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(file.readAll());

    QStringList pictures;
    for (const auto& m : QRegularExpression(QStringLiteral("<img[^>]*src=\"([^\"]+)\"")).globalMatch(html)) pictures << m.captured(1);
    EXPECT_GE(pictures.size(), 24) << "the eight yaku have three pictures each";
    for (const QString& src : pictures) {
        const QVariant image = help->document()->resource(QTextDocument::ImageResource, QUrl(src));
        EXPECT_FALSE(image.value<QImage>().isNull()) << src.toStdString();
    }
    QSet<QString> anchors;  // as the window knows them, where a click on a link scrolls to
    for (QTextBlock block = help->document()->begin(); block.isValid(); block = block.next())
        for (auto it = block.begin(); !it.atEnd(); ++it)
            for (const QString& name : it.fragment().charFormat().anchorNames()) anchors << name;
    for (const auto& m : QRegularExpression(QStringLiteral("href=\"#([^\"]+)\"")).globalMatch(html))
        EXPECT_TRUE(anchors.contains(m.captured(1))) << "no target for #" << m.captured(1).toStdString();
}

TEST_F(HelpAbout, AMissingHelpFileIsToldInAMessageBox) {
    QString told;
    whenModal([&](QWidget* modal) {
        auto* box = qobject_cast<QMessageBox*>(modal);
        ASSERT_NE(box, nullptr);
        told = box->text();
        box->accept();
    });
    QTest::keyClick(window.table(), Qt::Key_F1);
    EXPECT_TRUE(told.contains(QString::fromStdString(program.frmMain.helpFile))) << told.toStdString();
    EXPECT_EQ(window.helpWindow(), nullptr);
}

}  // namespace
}  // namespace petal::test
