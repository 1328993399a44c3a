#pragma once

#include <QNetworkDatagram>
#include <QObject>
#include <QUdpSocket>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>

/// Exchanges datagrams with companion programs on the loopback interface. The socket belongs to the
/// thread of this object; waitForDatagram() and stop() may be called on any thread.
class UdpClient : public QObject
{
    Q_OBJECT

public:
    explicit UdpClient(QObject* parent = nullptr);
    ~UdpClient() override;

    /// Binds to the loopback address. True also when the socket is bound already.
    bool bind(quint16 port);
    [[nodiscard]] bool isBound() const;
    void send(const char* data, int len, quint16 port, const QHostAddress& address);

    /// Moves the oldest datagram into @p out. False when none came in time or stop() was called.
    bool waitForDatagram(QNetworkDatagram& out, std::chrono::milliseconds timeout);
    /// Ends the current wait and makes all later ones return false at once.
    void stop();

    /// Each byte as two upper-case hex digits followed by a blank.
    static QByteArray hexDump(QByteArrayView bytes);

public slots:
    void readPendingDatagrams();

private:
    void enqueue(QNetworkDatagram datagram);

    QUdpSocket* m_socket; // this object's thread only

    std::mutex m_mutex;
    std::condition_variable m_cond;
    // Guarded by m_mutex.
    std::deque<QNetworkDatagram> m_queue;
    quint64 m_dropped = 0; // since the queue was empty
    bool m_stop = false;
};
