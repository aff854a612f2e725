#include "platform/qt/QtHost.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCoreApplication>
#include <QDate>
#include <QDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTime>
#include <QTimer>

#include "platform/FatalError.h"
#include "platform/Form.h"
#include "platform/Timer.h"
#include "platform/qt/QtSocket.h"
#include "platform/qt/KeyStrokes.h"

namespace petal {

QtHost::QtHost(std::filesystem::path folder) : folder_(std::move(folder)) {}

QtHost::~QtHost() {
    for (auto& [timer, qtimer] : timers_) delete qtimer;
}

void QtHost::registerDialog(const std::string& formName, DialogFactory make) { dialogs_[formName] = std::move(make); }

void QtHost::dispatch(const std::function<void()>& handler) {
    runHandler(*this, handler);
    closeUnloadedDialogs();
    if (onModelChanged) onModelChanged();
}

void QtHost::timerChanged(Timer& timer) {
    QTimer*& qtimer = timers_[&timer];
    if (!qtimer) {
        qtimer = new QTimer(this);
        qtimer->setTimerType(Qt::PreciseTimer);
        Timer* core = &timer;
        // A tick that comes while the previous one still runs is dropped.
        connect(qtimer, &QTimer::timeout, this, [this, core] {
            if (!core->ticking()) dispatch([core] { core->fire(); });
        });
    }
    qtimer->stop();
    if (timer.Enabled() && timer.Interval() > 0 && !ending_) qtimer->start(timer.Interval());
}

void QtHost::timerRemoved(Timer& timer) {
    auto it = timers_.find(&timer);
    if (it == timers_.end()) return;
    delete it->second;
    timers_.erase(it);
}

// No redraw is asked for here: the game pumps in loops of thousands of passes, and a repaint
// per pass would stall it. Handlers, waits and boxes ask for one instead.
void QtHost::doEvents() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

void QtHost::waitUntil(const std::function<bool()>& done) {
    if (onModelChanged) onModelChanged();
    // Sleeps in the event dispatcher until something arrives: no CPU is spent waiting.
    while (!done() && !ending_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// Queued behind the events already waiting, and run through dispatch like any input.
void QtHost::post(std::function<void()> call) {
    if (ending_) return;
    QMetaObject::invokeMethod(
        this,
        [this, call = std::move(call)] {
            if (!ending_) dispatch(call);
        },
        Qt::QueuedConnection);
}

MsgResult QtHost::msgBox(const MsgBox& box) {
    if (ending_) return MsgResult::Cancel;
    if (onModelChanged) onModelChanged();
    QMessageBox dialog(mainWidget_);
    dialog.setWindowTitle(QString::fromStdString(box.title));
    dialog.setText(QString::fromStdString(box.text));
    switch (box.icon) {
        case MsgIcon::Critical: dialog.setIcon(QMessageBox::Critical); break;
        case MsgIcon::Question: dialog.setIcon(QMessageBox::Question); break;
        case MsgIcon::Exclamation: dialog.setIcon(QMessageBox::Warning); break;
        case MsgIcon::Information: dialog.setIcon(QMessageBox::Information); break;
        case MsgIcon::None: break;
    }
    switch (box.buttons) {
        case MsgButtons::OK: dialog.setStandardButtons(QMessageBox::Ok); break;
        case MsgButtons::OKCancel: dialog.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel); break;
        case MsgButtons::YesNo: dialog.setStandardButtons(QMessageBox::Yes | QMessageBox::No); break;
        case MsgButtons::YesNoCancel:
            dialog.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            break;
    }
    switch (dialog.exec()) {
        case QMessageBox::Ok: return MsgResult::OK;
        case QMessageBox::Yes: return MsgResult::Yes;
        case QMessageBox::No: return MsgResult::No;
        default: return MsgResult::Cancel;
    }
}

void QtHost::showModal(Form& form) {
    if (ending_) return;
    auto factory = dialogs_.find(form.formName());
    if (factory == dialogs_.end())
        throw FatalError("Petalgarden", std::string("The form ") + form.formName() + " has no view.");
    form.markLoaded();
    form.Form_Load();
    if (!form.loaded() || ending_) return;
    QPointer<QDialog> dialog = factory->second(form, mainWidget_);
    open_.push_back({&form, dialog});
    QTimer::singleShot(0, dialog, [this, &form] { dispatch([&form] { form.Form_Activate(); }); });
    dialog->exec();
    open_.pop_back();
    if (form.loaded()) form.Unload();
    delete dialog;
}

void QtHost::closeUnloadedDialogs() {
    for (OpenDialog& open : open_)
        if (!open.form->loaded() && open.dialog && open.dialog->isVisible()) open.dialog->done(0);
}

void QtHost::refresh() {
    if (onModelChanged) onModelChanged();
}

void QtHost::setMousePointer(int pointer) {
    if (onMousePointer) onMousePointer(pointer);
}

std::string QtHost::timeText() { return QTime::currentTime().toString(QStringLiteral("HH:mm:ss")).toStdString(); }

std::string QtHost::dateText() { return QDate::currentDate().toString(QStringLiteral("MM/dd/yyyy")).toStdString(); }

std::filesystem::path QtHost::programFolder() { return folders().files; }

std::filesystem::path QtHost::helpFolder() { return folders().help; }

const ProgramFolders& QtHost::folders() {
    if (!folders_) {
        folders_ = folder_.empty() ? chooseProgramFolders(QCoreApplication::applicationDirPath().toStdString(),
                                                          FolderEnvironment::current())
                                   : ProgramFolders{folder_, folder_};
    }
    return *folders_;
}

std::unique_ptr<Socket> QtHost::createSocket() { return std::make_unique<QtSocket>(*this); }

void QtHost::endProgram() {
    if (ending_) return;
    ending_ = true;
    for (auto& [timer, qtimer] : timers_) qtimer->stop();
    for (OpenDialog& open : open_)
        if (open.dialog) open.dialog->done(0);
    QCoreApplication::exit(0);
    if (auto* dispatcher = QAbstractEventDispatcher::instance()) dispatcher->wakeUp();
}

void QtHost::showMainForm() {
    if (onModelChanged) onModelChanged();
    if (mainWidget_) mainWidget_->show();
}

// Keys go where typed keys go: to the widget with the focus, or else to the active window.
void QtHost::sendKeys(const std::string& keys) {
    QWidget* target = QApplication::focusWidget();
    if (!target) target = QApplication::activeWindow();
    if (!target) target = mainWidget_;
    if (!target) return;
    for (const auto& [key, text] : keyStrokes(keys)) {
        QCoreApplication::postEvent(target, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text));
        QCoreApplication::postEvent(target, new QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier, text));
    }
}

}  // namespace petal
