#pragma once
// The program's host: the core host's timers, waits, clock and sockets, with the widgets:
// message boxes, and modal dialogs made for each form model by the view that registered for it.
#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/qt/QtCoreHost.h"
#include "platform/qt/SoundPlayer.h"

namespace petal {

class QtHost : public QtCoreHost {
    Q_OBJECT
public:
    using DialogFactory = std::function<QDialog*(Form&, QWidget* parent)>;

    // The folders follow where the executable lies (ProgramFolders) unless one is given (tests).
    explicit QtHost(std::filesystem::path folder = {}) : QtCoreHost(std::move(folder)) {}

    // A view for the forms of this name; it forwards input to the form's handlers.
    void registerDialog(const std::string& formName, DialogFactory make);
    void setMainWidget(QWidget* widget) { mainWidget_ = widget; }
    // Called whenever the model may have changed, so that the views draw it.
    std::function<void()> onModelChanged;
    std::function<void(int)> onMousePointer;
    // The screen area of the table beside the score panels: boxes and forms open over it.
    std::function<QRect()> tableArea;

    MsgResult msgBox(const MsgBox& box) override;
    void endSessionBoxes() override;
    void showModal(Form& form) override;
    void refresh() override;
    void setMousePointer(int pointer) override;
    void playSound(const std::string& path) override;
    void showMainForm() override;
    void sendKeys(const std::string& keys) override;

protected:
    void modelChanged() override;
    void closeAll() override;

private:
    void closeUnloadedDialogs();
    void end(int status);
    // Where a box or form of this size stands over the table; nothing while no table shows.
    std::optional<QPoint> overTable(QSize size) const;
    int widestBox() const;
    static constexpr int kWidestAlone = 500;

    std::map<std::string, DialogFactory> dialogs_;
    struct OpenDialog {
        Form* form;
        QPointer<QDialog> dialog;
    };
    std::vector<OpenDialog> open_;
    std::vector<QPointer<QMessageBox>> sessionBoxes_;
    QPointer<QWidget> mainWidget_;
    // Loaded when the table first shows, so that the first card laid does not wait for it.
    std::unique_ptr<SoundPlayer> sounds_;
};

}  // namespace petal
