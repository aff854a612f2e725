#pragma once
// The main window: the menu bar of the menu model, the table view, the title and the closing.
#include <QMainWindow>
#include <QPointer>
#include <map>
#include <string>
#include <vector>

namespace petal {

class FrmMain;
class HelpWindow;
class Language;
class PictureStore;
class QtHost;
class TableView;
struct MenuItem;

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(FrmMain& game, QtHost& host, PictureStore& pictures);

    // Brings title, menus and table in line with the model.
    void sync();
    TableView* table() const { return table_; }

    // F1: the help file that the game names, in a window beside the table.
    void openHelp();
    HelpWindow* helpWindow() const;
    // Game → Language: the session's language or one of those the program carries, kept in
    // petalgarden-options.ini.
    void addLanguageMenu(Language& language);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildMenus();
    void runMenu(const MenuItem& item);
    void chooseLanguage(const QString& choice);
    void retranslate();
    QString helpPage() const;

    FrmMain& game_;
    QtHost& host_;
    TableView* table_;
    std::map<const MenuItem*, QAction*> actions_;
    std::vector<std::pair<QMenu*, std::string>> menus_;
    Language* language_ = nullptr;
    QMenu* languageMenu_ = nullptr;
    QPointer<HelpWindow> help_;
};

}  // namespace petal
