#pragma once
// The host's part that needs no window: Qt timers, nested event loops that sleep until an
// event comes, the clock, the program's folders and its sockets. The program's host adds the
// widgets; a headless player runs the game on this part alone.
#include <QObject>
#include <QPointer>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "platform/Host.h"
#include "platform/qt/ProgramFolders.h"

class QTimer;

namespace petal {

class QtCoreHost : public QObject, public Host {
    Q_OBJECT
public:
    // The folders follow where the executable lies (ProgramFolders) unless one is given.
    explicit QtCoreHost(std::filesystem::path folder = {});
    ~QtCoreHost() override;

    // Runs a core entry point from an event, then lets whatever shows the model catch up.
    void dispatch(const std::function<void()>& handler);
    // A handler of the game is running (events that it lets run come in beneath it).
    bool handling() const { return handling_ > 0; }
    // Frees an object of a closed connection once no handler of the game runs: the handler that
    // closed it may have been run from inside one of its signals, which must not return into it.
    void releaseAfterHandlers(QObject* object);
    // Timers run this many times faster than the game sets them (headless play; 1 in the program).
    void setSpeed(double speed) { speed_ = speed > 0 ? speed : 1; }

    void timerChanged(Timer& timer) override;
    void timerRemoved(Timer& timer) override;
    void doEvents() override;
    void waitUntil(const std::function<bool()>& done) override;
    void post(std::function<void()> call) override;
    void playSound(const std::string&) override {}  // no windows, no sound
    std::string timeText() override;
    std::string dateText() override;
    std::string translate(const char* context, const char* text) override;
    std::filesystem::path programFolder() override;
    std::filesystem::path helpFolder() override;
    std::string filesMoved() override { return folders().moved; }
    std::unique_ptr<Socket> createSocket() override;
    std::vector<std::string> localAddresses() override;
    std::unique_ptr<PortMapper> createPortMapper() override;
    void endProgram() override { end(0); }
    void endProgramAfterFailure() override { end(1); }
    bool ending() const override { return ending_; }
    int exitStatus() const override { return status_; }

protected:
    // After every handler and before every wait: the views draw the model.
    virtual void modelChanged() {}
    // When the program ends: what stands on screen is closed.
    virtual void closeAll() {}

private:
    const ProgramFolders& folders();
    // The event loop returns the status: 0, or 1 after a failure.
    void end(int status);

    std::map<Timer*, QTimer*> timers_;
    std::vector<QPointer<QObject>> released_;
    std::filesystem::path folder_;
    std::optional<ProgramFolders> folders_;
    double speed_ = 1;
    int status_ = 0;
    int handling_ = 0;
    bool ending_ = false;
};

}  // namespace petal
