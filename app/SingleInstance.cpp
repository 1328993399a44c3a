#include "app/SingleInstance.h"

#include "platform/InstanceSegment.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QThread>

namespace
{

// Milliseconds.
constexpr int ConnectTimeout = 1000;
constexpr int WriteTimeout = 30000;
constexpr int PauseBetweenAttempts = 50; // a connection to a missing server fails at once

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
    // The last process that detaches removes the segment, also one that a crash has left. If it
    // still exists after that, another process is attached.
    if (segmentExists() && segmentExists())
        return false;
    if (m_sharedMemory.create(1, QSharedMemory::ReadWrite))
        return true;
    m_claimError = QStringLiteral("Failed to create shared memory:") + m_sharedMemory.errorString();
    return false;
}

bool SingleInstance::segmentExists()
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
