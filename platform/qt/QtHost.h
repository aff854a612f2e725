#pragma once
// The program's host: Qt timers, nested event loops that sleep until an event comes, message
// boxes, and modal dialogs made for each form model by the view that registered for it.
#include <QObject>
#include <QDialog>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Host.h"
#include "platform/qt/ProgramFolders.h"

class QTimer;

namespace petal {

class QtHost : public QObject, public Host {
    Q_OBJECT
public:
    using DialogFactory = std::function<QDialog*(Form&, QWidget* parent)>;

    // The folders follow where the executable lies (ProgramFolders) unless one is given (tests).
    explicit QtHost(std::filesystem::path folder = {});
    ~QtHost() override;

    // A view for the forms of this name; it forwards input to the form's handlers.
    void registerDialog(const std::string& formName, DialogFactory make);
    void setMainWidget(QWidget* widget) { mainWidget_ = widget; }
    // Called whenever the model may have changed, so that the views draw it.
    std::function<void()> onModelChanged;
    std::function<void(int)> onMousePointer;

    // Runs a core entry point from an event, then lets the views catch up.
    void dispatch(const std::function<void()>& handler);

    void timerChanged(Timer& timer) override;
    void timerRemoved(Timer& timer) override;
    void doEvents() override;
    void waitUntil(const std::function<bool()>& done) override;
    void post(std::function<void()> call) override;
    MsgResult msgBox(const MsgBox& box) override;
    void showModal(Form& form) override;
    void refresh() override;
    void setMousePointer(int pointer) override;
    std::string timeText() override;
    std::string dateText() override;
    std::filesystem::path programFolder() override;
    std::unique_ptr<Socket> createSocket() override;
    std::filesystem::path helpFolder() override;
    void showMainForm() override;
    void sendKeys(const std::string& keys) override;
    void endProgram() override;
    bool ending() const override { return ending_; }

private:
    void closeUnloadedDialogs();
    const ProgramFolders& folders();

    std::map<Timer*, QTimer*> timers_;
    std::map<std::string, DialogFactory> dialogs_;
    struct OpenDialog {
        Form* form;
        QPointer<QDialog> dialog;
    };
    std::vector<OpenDialog> open_;
    std::filesystem::path folder_;
    std::optional<ProgramFolders> folders_;
    QPointer<QWidget> mainWidget_;
    bool ending_ = false;
};

}  // namespace petal
