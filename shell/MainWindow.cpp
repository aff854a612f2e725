#include "shell/MainWindow.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenuBar>

#include "engine/table_view/TableView.h"
#include "shell/FrmMain.h"
#include "shell/HelpWindow.h"
#include "platform/Words.h"
#include "platform/qt/Language.h"
#include "platform/qt/QtHost.h"

namespace petal {

MainWindow::MainWindow(FrmMain& game, QtHost& host, PictureStore& pictures)
    : game_(game), host_(host), table_(new TableView(game, host, pictures, this)) {
    setCentralWidget(table_);
    host_.tableArea = [this] { return table_->tableArea(); };
    buildMenus();
    // The designed size at the start, whatever the screen; the player may resize and maximise.
    resize(sizeHint());
    table_->setFocus();
    sync();
}

void MainWindow::buildMenus() {
    for (const MenuModel::Menu& menu : game_.menu.menus()) {
        QMenu* qmenu = menuBar()->addMenu(Language::core(menu.Caption));
        qmenu->setObjectName(QString::fromStdString(menu.name));
        menus_.emplace_back(qmenu, menu.Caption);
        for (MenuItem* item : menu.items) {
            if (item->separator()) {
                qmenu->addSeparator();
                continue;
            }
            QAction* action = qmenu->addAction(Language::core(item->Caption));
            action->setObjectName(QString::fromStdString(item->name));
            action->setCheckable(item->checkable);
            if (!item->shortcut.empty()) action->setShortcut(QKeySequence(QString::fromStdString(item->shortcut)));
            connect(action, &QAction::triggered, this, [this, item] { runMenu(*item); });
            actions_[item] = action;
        }
    }
}

void MainWindow::addLanguageMenu(Language& language) {
    language_ = &language;
    QMenu* game = menuBar()->findChild<QMenu*>(QStringLiteral("mnuGame"));
    languageMenu_ = new QMenu(game);
    languageMenu_->setObjectName(QStringLiteral("mnuLanguage"));
    game->insertMenu(actions_.at(&game_.menu.mnuSound), languageMenu_);
    auto* group = new QActionGroup(languageMenu_);
    QStringList choices{QStringLiteral("system")};
    choices << Language::available();
    const QString chosen = language.choice();
    for (const QString& choice : choices) {
        QAction* action = languageMenu_->addAction(choice == QLatin1String("system") ? QString() : Language::nativeName(choice));
        action->setData(choice);
        action->setCheckable(true);
        action->setChecked(choice == chosen);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, choice] { chooseLanguage(choice); });
    }
    retranslate();
}

// The choice is kept and spoken at once: every text on the screen is looked up as it is drawn.
void MainWindow::chooseLanguage(const QString& choice) {
    language_->apply(choice);
    host_.dispatch([this, &choice] {
        const std::string failure = game_.options.set(Language::kOption, choice.toStdString());
        if (!failure.empty()) host_.msgBox({failure, "Petalgarden", MsgIcon::Exclamation, MsgButtons::OK});
    });
}

void MainWindow::retranslate() {
    for (auto& [qmenu, caption] : menus_) qmenu->setTitle(Language::core(caption));
    for (auto& [item, action] : actions_) action->setText(Language::core(item->Caption));
    if (languageMenu_) {
        languageMenu_->setTitle(Language::core(PETAL_TR("core", "&Language")));
        languageMenu_->actions().first()->setText(Language::core(PETAL_TR("core", "&System")));
    }
    if (help_ && help_->isVisible()) openHelp();
    sync();
}

void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) retranslate();
    QMainWindow::changeEvent(event);
}

void MainWindow::runMenu(const MenuItem& item) {
    MenuModel& menu = game_.menu;
    host_.dispatch([this, &item, &menu] {
        if (&item == &menu.mnuExit) game_.mnuExit_Click();
        else if (&item == &menu.mnuSound) game_.mnuSound_Click();
        else if (&item == &menu.mnuAnimations) game_.mnuAnimations_Click();
        else if (&item == &menu.mnuVChat) game_.mnuVChat_Click();
        else if (&item == &menu.mnuVScore) game_.mnuVScore_Click();
        else if (&item == &menu.mnuSetup) game_.mnuSetup_Click();
        else if (&item == &menu.mnuVHallofFame) game_.mnuVHallofFame_Click();
        else if (&item == &menu.mnuStatistics) game_.mnuStatistics_Click();
        else if (&item == &menu.mnuHAbout) game_.mnuHAbout_Click();
        else if (&item == &menu.mnuHHelp) game_.mnuHHelp_Click();
        else if (&item == &menu.mnuHint) game_.mnuHint_Click();
    });
}

void MainWindow::sync() {
    setWindowTitle(Language::core(game_.Caption));
    game_.syncMenu();
    for (auto& [item, action] : actions_) {
        action->setEnabled(item->Enabled);
        // The mark follows the model, which the item's handler has turned.
        if (item->checkable) action->setChecked(item->Checked);
    }
    table_->modelChanged();
    table_->update();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (host_.ending()) {
        event->accept();
        return;
    }
    bool refused = false;
    host_.dispatch([this, &refused] { refused = game_.Form_Unload(); });
    if (refused) {
        event->ignore();
        return;
    }
    event->accept();
    host_.endProgram();
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier) {
        openHelp();
        return;
    }
    QMainWindow::keyPressEvent(event);
}

HelpWindow* MainWindow::helpWindow() const { return help_; }

// The help in the language spoken, PetalgardenHelp_<code>.html beside the English page, where
// there is one.
QString MainWindow::helpPage() const {
    const QString english = QString::fromStdString(game_.helpFile);
    if (!language_ || language_->code() == QLatin1String("en")) return english;
    const QString own = english.chopped(5) + QLatin1Char('_') + language_->code() + QStringLiteral(".html");
    return QFileInfo(own).isReadable() ? own : english;
}

void MainWindow::openHelp() {
    const QString file = helpPage();
    if (!QFileInfo(file).isReadable()) {
        host_.msgBox({said(host_, PETAL_TR("core", "The help file cannot be found:\n%1\n\nIt is installed with the game; "
                                                   "installing Petalgarden again brings it back."),
                           {game_.helpFile}),
                      PETAL_TR("core", "Petalgarden Help"), MsgIcon::Exclamation, MsgButtons::OK});
        return;
    }
    if (!help_) help_ = new HelpWindow(this);
    help_->showPage(file);
}

}  // namespace petal
