#pragma once
// The program's socket on Qt's TCP classes: a server while listening, one connection after
// Accept or Connect. Its events run through the host as handlers.
#include <QObject>
#include <QPointer>
#include <map>

#include "platform/Socket.h"

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
    void requireClosed() const;
    void adopt(QTcpSocket* socket);
    void onIncoming();
    void onSocketError(int error, const QString& text);
    void raiseError(int number, const std::string& description);

    QtCoreHost& host_;
    QPointer<QTcpServer> server_;
    QPointer<QTcpSocket> socket_;
    std::map<long, QPointer<QTcpSocket>> pending_;
    long nextRequest_ = 1;
    int state_ = sckClosed;
};

}  // namespace petal
