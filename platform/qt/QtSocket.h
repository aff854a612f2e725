#pragma once
// The program's socket on Qt's TCP classes: a server while listening, one connection after
// Accept or Connect. Its events run through the host as handlers.
#include <QHostAddress>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <map>
#include <vector>

#include "platform/Socket.h"

class QHostInfo;
class QTcpServer;
class QTcpSocket;

namespace petal {

class QtCoreHost;

class QtSocket : public QObject, public Socket {
    Q_OBJECT
public:
    explicit QtSocket(QtCoreHost& host);
    ~QtSocket() override;

    int State() const override { return state_; }
    void Listen() override;
    void Connect() override;
    void Accept(long requestID) override;
    void Close() override;
    void SendData(const std::string& data) override;
    std::string GetData() override;

private:
    // Connecting to a name with addresses of both families: IPv6 first, the next address a
    // moment later if no answer has come, and the first connection up is kept.
    void onLookedUp(const QHostInfo& info, int generation);
    void race(const QList<QHostAddress>& addresses);
    void startNextAttempt();
    void attemptWon(QTcpSocket* socket);
    void attemptFailed(QTcpSocket* socket);
    void dropAttempts();
    void requireClosed() const;
    void adopt(QTcpSocket* socket);
    void onIncoming();
    void onSocketError(int error, const QString& text);
    void raiseError(int number, const std::string& description);

    QtCoreHost& host_;
    QPointer<QTcpServer> server_;
    QPointer<QTcpSocket> socket_;
    std::map<long, QPointer<QTcpSocket>> pending_;
    std::deque<QHostAddress> candidates_;
    std::vector<QPointer<QTcpSocket>> attempts_;
    QTimer nextAttempt_;
    int lookup_ = -1;
    int generation_ = 0;  // of Connect: a lookup that answers after Close is dropped
    long nextRequest_ = 1;
    int state_ = sckClosed;
};

}  // namespace petal
