#include "shell/MainWindow.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenuBar>

#include "engine/table_view/TableView.h"
#include "shell/FrmMain.h"
#include "shell/HelpWindow.h"
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
        QMenu* qmenu = menuBar()->addMenu(QString::fromStdString(menu.Caption));
        qmenu->setObjectName(QString::fromStdString(menu.name));
        for (MenuItem* item : menu.items) {
            if (item->separator()) {
                qmenu->addSeparator();
                continue;
            }
            QAction* action = qmenu->addAction(QString::fromStdString(item->Caption));
            action->setObjectName(QString::fromStdString(item->name));
            action->setCheckable(item->checkable);
            if (!item->shortcut.empty()) action->setShortcut(QKeySequence(QString::fromStdString(item->shortcut)));
            connect(action, &QAction::triggered, this, [this, item] { runMenu(*item); });
            actions_[item] = action;
        }
    }
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
    setWindowTitle(QString::fromStdString(game_.Caption));
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

void MainWindow::openHelp() {
    const QString file = QString::fromStdString(game_.helpFile);
    if (!QFileInfo(file).isReadable()) {
        host_.msgBox({"The help file cannot be found:\n" + game_.helpFile +
                          "\n\nIt is installed with the game; installing Petalgarden again brings it back.",
                      "Petalgarden Help", MsgIcon::Exclamation, MsgButtons::OK});
        return;
    }
    if (!help_) help_ = new HelpWindow(this);
    help_->showPage(file);
}

}  // namespace petal
