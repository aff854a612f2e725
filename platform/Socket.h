#pragma once
// The TCP socket control of a network game: one connection, its state as a number, and four
// events. The Qt host implements it on the platform's sockets, the simulated host on an
// in-process link.
#include <functional>
#include <stdexcept>
#include <string>

namespace petal {

// Raised by an operation that the socket's current state does not allow.
class SocketError : public std::runtime_error {
public:
    SocketError(int number, const std::string& description) : std::runtime_error(description), number_(number) {}
    int number() const { return number_; }

private:
    int number_;
};

class Socket {
public:
    // The values of State.
    static constexpr int sckClosed = 0;
    static constexpr int sckListening = 2;
    static constexpr int sckResolvingHost = 4;
    static constexpr int sckConnecting = 6;
    static constexpr int sckConnected = 7;
    static constexpr int sckClosing = 8;  // the peer has closed its side
    static constexpr int sckError = 9;
    // The number of an operation refused in the current state.
    static constexpr int kInvalidOperation = 40020;

    virtual ~Socket() = default;

    virtual int State() const = 0;
    int LocalPort = 0;
    int RemotePort = 0;
    std::string RemoteHost;

    // Listen on LocalPort, every address; Connect to RemoteHost at RemotePort. Both throw
    // SocketError with kInvalidOperation unless the socket is closed.
    virtual void Listen() = 0;
    virtual void Connect() = 0;
    // Takes the connection that a ConnectionRequest announced as this socket's connection.
    virtual void Accept(long requestID) = 0;
    virtual void Close() = 0;
    // Bytes go out as UTF-8 text; SendComplete follows once they have been written.
    virtual void SendData(const std::string& data) = 0;
    // Takes every byte that has arrived and not yet been taken.
    virtual std::string GetData() = 0;

    // Events, each run by the host as a handler of its own.
    std::function<void(long requestID)> ConnectionRequest;
    std::function<void(long bytesTotal)> DataArrival;
    std::function<void()> SendComplete;
    std::function<void(int number, const std::string& description)> Error;
};

}  // namespace petal
