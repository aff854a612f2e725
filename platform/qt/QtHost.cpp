#include "platform/qt/QtHost.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTimer>

#include "platform/FatalError.h"
#include "platform/Form.h"
#include "platform/Timer.h"
#include "platform/qt/KeyStrokes.h"

namespace petal {

void QtHost::registerDialog(const std::string& formName, DialogFactory make) { dialogs_[formName] = std::move(make); }

void QtHost::modelChanged() {
    closeUnloadedDialogs();
    if (onModelChanged) onModelChanged();
}

MsgResult QtHost::msgBox(const MsgBox& box) {
    if (ending()) return MsgResult::Cancel;
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
    if (ending()) return;
    auto factory = dialogs_.find(form.formName());
    if (factory == dialogs_.end())
        throw FatalError("Petalgarden", std::string("The form ") + form.formName() + " has no view.");
    form.markLoaded();
    form.Form_Load();
    if (!form.loaded() || ending()) return;
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

void QtHost::closeAll() {
    for (OpenDialog& open : open_)
        if (open.dialog) open.dialog->done(0);
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
