#include "platform/qt/QtCoreHost.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDate>
#include <QNetworkInterface>
#include <QTime>
#include <QTimer>
#include <cmath>
#include <utility>

#include "platform/FatalError.h"
#include "platform/Timer.h"
#include "platform/qt/QtSocket.h"
#include "platform/qt/RouterPortMapper.h"

namespace petal {

QtCoreHost::QtCoreHost(std::filesystem::path folder) : folder_(std::move(folder)) {}

QtCoreHost::~QtCoreHost() {
    for (auto& [timer, qtimer] : timers_) delete qtimer;
}

void QtCoreHost::dispatch(const std::function<void()>& handler) {
    ++handling_;
    runHandler(*this, handler);
    --handling_;
    if (handling_ == 0) {
        for (const QPointer<QObject>& object : std::exchange(released_, {}))
            if (object) object->deleteLater();
    }
    modelChanged();
}

void QtCoreHost::releaseAfterHandlers(QObject* object) {
    if (handling_ == 0) object->deleteLater();
    else released_.emplace_back(object);
}

void QtCoreHost::timerChanged(Timer& timer) {
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
    if (timer.Enabled() && timer.Interval() > 0 && !ending_)
        qtimer->start(std::max(1, static_cast<int>(std::lround(timer.Interval() / speed_))));
}

void QtCoreHost::timerRemoved(Timer& timer) {
    auto it = timers_.find(&timer);
    if (it == timers_.end()) return;
    delete it->second;
    timers_.erase(it);
}

// No redraw is asked for here: the game pumps in loops of thousands of passes, and a repaint
// per pass would stall it. Handlers, waits and boxes ask for one instead.
void QtCoreHost::doEvents() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

void QtCoreHost::waitUntil(const std::function<bool()>& done) {
    modelChanged();
    // Sleeps in the event dispatcher until something arrives: no CPU is spent waiting.
    while (!done() && !ending_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// Queued behind the events already waiting, and run through dispatch like any input.
void QtCoreHost::post(std::function<void()> call) {
    if (ending_) return;
    QMetaObject::invokeMethod(
        this,
        [this, call = std::move(call)] {
            if (!ending_) dispatch(call);
        },
        Qt::QueuedConnection);
}

std::string QtCoreHost::timeText() { return QTime::currentTime().toString(QStringLiteral("HH:mm:ss")).toStdString(); }

std::string QtCoreHost::translate(const char* context, const char* text) {
    return QCoreApplication::translate(context, text).toStdString();
}

std::string QtCoreHost::dateText() { return QDate::currentDate().toString(QStringLiteral("MM/dd/yyyy")).toStdString(); }

std::filesystem::path QtCoreHost::programFolder() { return folders().files; }

std::filesystem::path QtCoreHost::helpFolder() { return folders().help; }

const ProgramFolders& QtCoreHost::folders() {
    if (!folders_) {
        folders_ = folder_.empty() ? chooseProgramFolders(QCoreApplication::applicationDirPath().toStdString(),
                                                          FolderEnvironment::current())
                                   : ProgramFolders{folder_, folder_, {}};
    }
    return *folders_;
}

std::unique_ptr<Socket> QtCoreHost::createSocket() { return std::make_unique<QtSocket>(*this); }

std::unique_ptr<PortMapper> QtCoreHost::createPortMapper() { return std::make_unique<RouterPortMapper>(); }

std::vector<std::string> QtCoreHost::localAddresses() {
    std::vector<std::string> addresses;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        const auto flags = interface.flags();
        if (!(flags & QNetworkInterface::IsUp) || !(flags & QNetworkInterface::IsRunning) ||
            (flags & QNetworkInterface::IsLoopBack))
            continue;
        for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
            const QHostAddress address = entry.ip();
            if (address.isLoopback() || (address.protocol() == QAbstractSocket::IPv6Protocol && address.isLinkLocal()))
                continue;
            addresses.push_back(address.toString().toStdString());
        }
    }
    return addresses;
}

void QtCoreHost::end(int status) {
    if (ending_) return;
    ending_ = true;
    status_ = status;
    for (auto& [timer, qtimer] : timers_) qtimer->stop();
    closeAll();
    QCoreApplication::exit(status);
    if (auto* dispatcher = QAbstractEventDispatcher::instance()) dispatcher->wakeUp();
}

}  // namespace petal
