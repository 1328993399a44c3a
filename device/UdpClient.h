#pragma once

#include <QNetworkDatagram>
#include <QObject>
#include <QUdpSocket>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>

/// Datagrams to and from companion programs on the loopback interface. The socket belongs to the
/// thread that made this object; waitForDatagram() may be called from any other.
class UdpClient : public QObject
{
    Q_OBJECT

public:
    explicit UdpClient(QObject* parent = nullptr);
    ~UdpClient() override;

    /// Binds to the loopback address; true also when bound already.
    bool bind(quint16 port);
    [[nodiscard]] bool isBound() const;
    void send(const char* data, int len, quint16 port, const QHostAddress& address);

    /// Moves the oldest datagram into `out`; false when none came in time or the client is
    /// stopping.
    bool waitForDatagram(QNetworkDatagram& out, std::chrono::milliseconds timeout);
    /// Wakes the waiting thread and lets every later wait fail at once.
    void stop();

    /// The bytes as two upper-case hex digits and a blank each.
    static QByteArray hexDump(QByteArrayView bytes);

public slots:
    void readPendingDatagrams();

private:
    QUdpSocket* m_socket;
    std::mutex m_mutex;
    std::condition_variable m_cond;
    std::deque<QNetworkDatagram> m_queue;
    bool m_stop = false;
};
