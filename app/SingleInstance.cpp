#include "app/SingleInstance.h"

#include "platform/InstanceObjects.h"
#include "platform/Processes.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QLocalSocket>
#include <QThread>

#include <utility>

namespace
{

// Milliseconds.
constexpr int ConnectTimeout = 1000;
constexpr int WriteTimeout = 30000;
constexpr int AnswerTimeout = 1000;
constexpr int EndTimeout = 2000;         // between an instance's closing its server and its end
constexpr int QuitTimeout = 10000;       // twice the time that an instance takes to quit at most
constexpr int PauseBetweenAttempts = 50; // a connection to a missing server fails at once

} // namespace

SingleInstance::SingleInstance(QString name, QString serverName)
    : m_name(std::move(name))
    , m_serverName(std::move(serverName))
{
}

SingleInstance::~SingleInstance()
{
    release();
}

SingleInstance::Outcome SingleInstance::start()
{
    const QDeadlineTimer deadline(platform::handOverPatienceMs());
    bool isFirstAttempt = true;
    do {
        if (!isFirstAttempt)
            QThread::msleep(PauseBetweenAttempts);
        const Claim claimed = claim();
        if (claimed != Claim::Held)
            return claimed == Claim::Made ? Outcome::First : Outcome::HandedOver;
        if (isFirstAttempt)
            qDebug().noquote() << m_claimError;
        isFirstAttempt = false;
        const Reply reply = handOver();
        if (reply == Reply::Closed)
            return succeed();
        if (reply == Reply::Accepted)
            return Outcome::HandedOver;
    } while (!deadline.hasExpired());
    qDebug("Existing VORNApp cannot be connected");
    return Outcome::Unreachable;
}

/// Takes the place of an instance that closed the connection without an answer.
SingleInstance::Outcome SingleInstance::succeed()
{
    for (const QDeadlineTimer deadline(EndTimeout); !deadline.hasExpired();) {
        const Claim claimed = claim();
        if (claimed != Claim::Held)
            return claimed == Claim::Made ? Outcome::First : Outcome::HandedOver;
        QThread::msleep(PauseBetweenAttempts);
    }
    return Outcome::HandedOver; // it still runs
}

SingleInstance::Claim SingleInstance::claim()
{
    const platform::InstanceLock lock(m_name);
    m_claimError = QStringLiteral("sharedMemory attach");
    if (isSegmentHeld())
        return Claim::Held;
    // A temp cleaner may have removed the segment's file from under a running instance.
    const Reply reply = handOver();
    if (reply != Reply::Missing)
        return reply == Reply::Accepted ? Claim::Answered : Claim::Held;
    // On Linux the segment's key is computed from the inode of its file. After a crash, a segment
    // whose file is gone can have the key of the file that create() has just made.
    if (createSegment() || (!isSegmentHeld() && createSegment()))
        return Claim::Made;
    m_claimError =
        QStringLiteral("Failed to create shared memory:") + m_sharedMemory->errorString();
    return Claim::Held;
}

/// The last process that detaches removes the segment, also one that a crash has left. If it still
/// exists after that, another process is attached.
bool SingleInstance::isSegmentHeld()
{
    return segmentExists() && segmentExists();
}

bool SingleInstance::segmentExists()
{
    QSharedMemory& segment = newSegment();
    return segment.attach(QSharedMemory::ReadWrite) && segment.detach();
}

bool SingleInstance::createSegment()
{
    return newSegment().create(1, QSharedMemory::ReadWrite);
}

/// A QSharedMemory of Qt 6.4 whose create() has failed fails in every later call.
QSharedMemory& SingleInstance::newSegment()
{
    platform::setInstanceKey(m_sharedMemory.emplace(), m_name);
    return *m_sharedMemory;
}

SingleInstance::Reply SingleInstance::handOver() const
{
    return ask(QByteArray("activate"));
}

SingleInstance::Reply SingleInstance::ask(const QByteArray& request, QByteArray* answer) const
{
    QLocalSocket socket;
    socket.connectToServer(m_serverName, QIODevice::ReadWrite);
    if (!socket.waitForConnected(ConnectTimeout))
        return Reply::Missing;
    qDebug("send %s", request.constData());
    const QByteArray right = platform::passOnForegroundRight();
    socket.write(right.isEmpty() ? request : request + ' ' + right);
    socket.waitForBytesWritten(WriteTimeout);
    // An instance that is too busy to answer handles the request later.
    const bool isAnswered = socket.waitForReadyRead(AnswerTimeout);
    if (!isAnswered && socket.state() != QLocalSocket::ConnectedState)
        return Reply::Closed;
    if (answer)
        *answer = socket.readAll();
    socket.disconnectFromServer();
    return Reply::Accepted;
}

bool SingleInstance::isFree()
{
    const platform::InstanceLock lock(m_name);
    return !isSegmentHeld();
}

bool SingleInstance::endRunning()
{
    for (const QDeadlineTimer deadline(QuitTimeout); !deadline.hasExpired();) {
        QByteArray answer;
        const Reply reply = ask(QByteArray("quit"), &answer);
        if (answer.startsWith(QuitAnswer)) {
            const qint64 process = answer.mid(qstrlen(QuitAnswer)).toLongLong();
            return platform::waitForEnd(process,
                                        std::chrono::milliseconds(deadline.remainingTime()));
        }
        // An instance that starts or ends holds the segment and has no server.
        if (reply == Reply::Missing && isFree())
            return true;
        QThread::msleep(PauseBetweenAttempts);
    }
    return false;
}

void SingleInstance::release()
{
    m_sharedMemory.reset();
    platform::removeInstanceFolder();
}
