#include "platform/qt/QtSocket.h"

#include <QHostInfo>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include "platform/qt/QtCoreHost.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

namespace petal {

namespace {

// A peer that vanishes without closing (a cable pulled, a machine asleep) sends nothing more:
// probes after a short silence, and a limit on unanswered data, make that the loss of the
// connection within a minute. Nothing new goes on the wire but the kernel's own probes.
constexpr int kKeepIdleSeconds = 15;
constexpr int kKeepIntervalSeconds = 5;
constexpr int kKeepProbes = 6;
constexpr unsigned kUnansweredLimitMs = 50'000;
// How long an attempt to connect has before the next address is tried beside it.
constexpr int kNextAttemptMs = 250;

void keepAlive(QTcpSocket* socket) {
    const int fd = static_cast<int>(socket->socketDescriptor());
    if (fd < 0) return;
    const int on = 1;
    ::setsockopt(fd, SOL_SOCKET, SO_KEEPALIVE, &on, sizeof on);
    ::setsockopt(fd, IPPROTO_TCP, TCP_KEEPIDLE, &kKeepIdleSeconds, sizeof kKeepIdleSeconds);
    ::setsockopt(fd, IPPROTO_TCP, TCP_KEEPINTVL, &kKeepIntervalSeconds, sizeof kKeepIntervalSeconds);
    ::setsockopt(fd, IPPROTO_TCP, TCP_KEEPCNT, &kKeepProbes, sizeof kKeepProbes);
    ::setsockopt(fd, IPPROTO_TCP, TCP_USER_TIMEOUT, &kUnansweredLimitMs, sizeof kUnansweredLimitMs);
}

// The classic numbers of socket failures, which a player may look up; the text is the
// platform's own.
int errorNumber(QAbstractSocket::SocketError error) {
    switch (error) {
        case QAbstractSocket::ConnectionRefusedError: return 10061;
        case QAbstractSocket::HostNotFoundError: return 11001;
        case QAbstractSocket::SocketAccessError: return 10013;
        case QAbstractSocket::SocketResourceError: return 10055;
        case QAbstractSocket::SocketTimeoutError: return 10060;
        case QAbstractSocket::NetworkError: return 10050;
        case QAbstractSocket::AddressInUseError: return 10048;
        case QAbstractSocket::SocketAddressNotAvailableError: return 10049;
        case QAbstractSocket::UnsupportedSocketOperationError: return 10045;
        case QAbstractSocket::RemoteHostClosedError: return 10054;
        default: return 10000 + static_cast<int>(error);
    }
}

}  // namespace

QtSocket::QtSocket(QtCoreHost& host) : host_(host) {
    nextAttempt_.setSingleShot(true);
    connect(&nextAttempt_, &QTimer::timeout, this, &QtSocket::startNextAttempt);
}

QtSocket::~QtSocket() {
    // No event of a socket that is going may reach the game.
    if (socket_) socket_->disconnect(this);
    if (server_) server_->disconnect(this);
    for (auto& [id, pending] : pending_)
        if (pending) pending->disconnect(this);
    for (auto& attempt : attempts_)
        if (attempt) attempt->disconnect(this);
    if (lookup_ >= 0) QHostInfo::abortHostLookup(lookup_);
}

void QtSocket::requireClosed() const {
    if (state_ != sckClosed) throw SocketError(kInvalidOperation, "Invalid operation at current state");
}

void QtSocket::raiseError(int number, const std::string& description) {
    state_ = sckError;
    host_.dispatch([this, number, description] {
        if (Error) Error(number, description);
    });
}

void QtSocket::Listen() {
    requireClosed();
    server_ = new QTcpServer(this);
    connect(server_, &QTcpServer::newConnection, this, &QtSocket::onIncoming);
    if (!server_->listen(QHostAddress::Any, static_cast<quint16>(LocalPort))) {
        const int number = errorNumber(server_->serverError());
        const std::string text = server_->errorString().toStdString();
        delete server_;
        // Told as the socket's error event, after the caller is done.
        QTimer::singleShot(0, this, [this, number, text] { raiseError(number, text); });
        return;
    }
    state_ = sckListening;
}

// Each connection that comes is offered to the game; one that it does not accept is closed.
void QtSocket::onIncoming() {
    while (server_ && server_->hasPendingConnections()) {
        QTcpSocket* incoming = server_->nextPendingConnection();
        incoming->setParent(this);
        const long id = nextRequest_++;
        pending_[id] = incoming;
        host_.dispatch([this, id] {
            if (ConnectionRequest) ConnectionRequest(id);
        });
        const auto left = pending_.find(id);
        if (left != pending_.end()) {
            if (left->second) left->second->close(), host_.releaseAfterHandlers(left->second);
            pending_.erase(left);
        }
    }
}

void QtSocket::Accept(long requestID) {
    const auto it = pending_.find(requestID);
    if (it == pending_.end() || !it->second) return;
    QTcpSocket* accepted = it->second;
    pending_.erase(it);
    adopt(accepted);
    keepAlive(accepted);
    state_ = sckConnected;
    if (accepted->bytesAvailable() > 0)
        QTimer::singleShot(0, this, [this, accepted] {
            if (socket_ == accepted) host_.dispatch([this, accepted] {
                if (DataArrival) DataArrival(static_cast<long>(accepted->bytesAvailable()));
            });
        });
}

void QtSocket::Connect() {
    requireClosed();
    state_ = sckResolvingHost;
    const QString name = QString::fromStdString(RemoteHost);
    QHostAddress literal;
    if (literal.setAddress(name)) {
        race({literal});
        return;
    }
    const int generation = ++generation_;
    lookup_ = QHostInfo::lookupHost(name, this, [this, generation](const QHostInfo& info) { onLookedUp(info, generation); });
}

void QtSocket::onLookedUp(const QHostInfo& info, int generation) {
    if (generation != generation_ || state_ != sckResolvingHost) return;
    lookup_ = -1;
    if (info.error() != QHostInfo::NoError || info.addresses().isEmpty()) {
        raiseError(errorNumber(QAbstractSocket::HostNotFoundError),
                   info.error() != QHostInfo::NoError ? info.errorString().toStdString() : "Host not found");
        return;
    }
    // The families taken in turn, IPv6 first.
    QList<QHostAddress> v6, v4, order;
    for (const QHostAddress& address : info.addresses())
        (address.protocol() == QAbstractSocket::IPv6Protocol ? v6 : v4).append(address);
    for (qsizetype i = 0; i < std::max(v6.size(), v4.size()); ++i) {
        if (i < v6.size()) order.append(v6[i]);
        if (i < v4.size()) order.append(v4[i]);
    }
    race(order);
}

void QtSocket::race(const QList<QHostAddress>& addresses) {
    candidates_.assign(addresses.begin(), addresses.end());
    state_ = sckConnecting;
    startNextAttempt();
}

void QtSocket::startNextAttempt() {
    if (candidates_.empty() || state_ != sckConnecting) return;
    const QHostAddress address = candidates_.front();
    candidates_.pop_front();
    auto* attempt = new QTcpSocket(this);
    attempts_.push_back(attempt);
    connect(attempt, &QTcpSocket::connected, this, [this, attempt] { attemptWon(attempt); });
    connect(attempt, &QTcpSocket::errorOccurred, this, [this, attempt] { attemptFailed(attempt); });
    attempt->connectToHost(address, static_cast<quint16>(RemotePort));
    if (!candidates_.empty()) nextAttempt_.start(kNextAttemptMs);
}

void QtSocket::attemptWon(QTcpSocket* socket) {
    std::erase(attempts_, socket);
    socket->disconnect(this);
    dropAttempts();
    adopt(socket);
    state_ = sckConnected;
    keepAlive(socket);
}

// The last attempt to fail tells its reason; one that fails early lets the next start at once.
void QtSocket::attemptFailed(QTcpSocket* socket) {
    const QAbstractSocket::SocketError error = socket->error();
    const QString text = socket->errorString();
    std::erase(attempts_, socket);
    socket->disconnect(this);
    host_.releaseAfterHandlers(socket);
    if (!attempts_.empty()) return;
    if (!candidates_.empty()) {
        nextAttempt_.stop();
        startNextAttempt();
        return;
    }
    raiseError(errorNumber(error), text.toStdString());
}

void QtSocket::dropAttempts() {
    nextAttempt_.stop();
    candidates_.clear();
    for (auto& attempt : attempts_) {
        if (!attempt) continue;
        attempt->disconnect(this);
        attempt->abort();
        host_.releaseAfterHandlers(attempt);
    }
    attempts_.clear();
    if (lookup_ >= 0) QHostInfo::abortHostLookup(lookup_);
    lookup_ = -1;
    ++generation_;
}

void QtSocket::adopt(QTcpSocket* socket) {
    socket_ = socket;
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connect(socket, &QTcpSocket::stateChanged, this, [this, socket](QAbstractSocket::SocketState s) {
        if (socket_ != socket) return;
        if (s == QAbstractSocket::HostLookupState) state_ = sckResolvingHost;
        else if (s == QAbstractSocket::ConnectingState) state_ = sckConnecting;
        else if (s == QAbstractSocket::ConnectedState) state_ = sckConnected, keepAlive(socket);
        else if (s == QAbstractSocket::UnconnectedState && state_ == sckConnected) state_ = sckClosing;
    });
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
        if (socket_ != socket) return;
        host_.dispatch([this, socket] {
            if (DataArrival && socket_ == socket) DataArrival(static_cast<long>(socket->bytesAvailable()));
        });
    });
    connect(socket, &QTcpSocket::bytesWritten, this, [this, socket] {
        if (socket_ != socket || socket->bytesToWrite() > 0) return;
        host_.dispatch([this] {
            if (SendComplete) SendComplete();
        });
    });
    connect(socket, &QTcpSocket::errorOccurred, this, [this, socket](QAbstractSocket::SocketError error) {
        if (socket_ == socket) onSocketError(error, socket->errorString());
    });
}

void QtSocket::onSocketError(int error, const QString& text) {
    // The peer's orderly close is a state, not a failure.
    if (error == QAbstractSocket::RemoteHostClosedError) {
        state_ = sckClosing;
        return;
    }
    raiseError(errorNumber(static_cast<QAbstractSocket::SocketError>(error)), text.toStdString());
}

void QtSocket::Close() {
    dropAttempts();
    if (server_) {
        server_->disconnect(this);
        server_->close();
        host_.releaseAfterHandlers(server_);
        server_ = nullptr;
    }
    if (socket_) {
        QTcpSocket* old = socket_;
        socket_ = nullptr;
        old->disconnect(this);
        old->disconnectFromHost();  // what was written still goes out before the end
        host_.releaseAfterHandlers(old);
    }
    state_ = sckClosed;
}

void QtSocket::SendData(const std::string& data) {
    if (!socket_ || state_ != sckConnected) return;
    socket_->write(data.data(), static_cast<qint64>(data.size()));
}

std::string QtSocket::GetData() {
    if (!socket_) return {};
    return socket_->readAll().toStdString();
}

}  // namespace petal
