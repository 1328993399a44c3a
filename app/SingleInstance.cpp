#include "app/SingleInstance.h"

#include "platform/InstanceSegment.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QThread>

namespace
{

constexpr int ConnectTimeout = 1000;
constexpr int WriteTimeout = 30000;
/// Connecting to a server that does not listen yet fails at once, hence the pause between attempts.
constexpr int PauseBetweenAttempts = 50;

} // namespace

SingleInstance::SingleInstance(const QString& key, QString serverName)
    : m_sharedMemory(key)
    , m_serverName(std::move(serverName))
{
}

SingleInstance::Outcome SingleInstance::start()
{
    QElapsedTimer waited;
    waited.start();
    bool isFirstAttempt = true;
    do {
        if (!isFirstAttempt)
            QThread::msleep(PauseBetweenAttempts);
        if (claim())
            return Outcome::First;
        if (isFirstAttempt)
            qDebug().noquote() << (m_claimError.isEmpty() ? QStringLiteral("sharedMemory attach")
                                                          : m_claimError);
        isFirstAttempt = false;
        if (handOver())
            return Outcome::HandedOver;
    } while (waited.elapsed() < platform::handOverPatienceMs());
    qDebug("Existing VORNApp cannot be connected");
    return Outcome::Unreachable;
}

bool SingleInstance::claim()
{
    const platform::InstanceLock lock(m_sharedMemory.key());
    m_claimError.clear();
    // The last one to detach removes the segment, also one that a crash left behind. If it is still
    // there, somebody else is attached.
    if (isThereASegment() && isThereASegment())
        return false;
    if (m_sharedMemory.create(1, QSharedMemory::ReadWrite))
        return true;
    m_claimError = QStringLiteral("Failed to create shared memory:") + m_sharedMemory.errorString();
    return false;
}

bool SingleInstance::isThereASegment()
{
    if (!m_sharedMemory.attach(QSharedMemory::ReadWrite))
        return false;
    m_sharedMemory.detach();
    return true;
}

bool SingleInstance::handOver() const
{
    QLocalSocket socket;
    socket.connectToServer(m_serverName, QIODevice::ReadWrite);
    if (!socket.waitForConnected(ConnectTimeout))
        return false;
    qDebug("send activate");
    socket.write("activate", 8);
    socket.waitForBytesWritten(WriteTimeout);
    socket.disconnectFromServer();
    return true;
}

void SingleInstance::release()
{
    if (m_sharedMemory.isAttached())
        m_sharedMemory.detach();
}
