#include "portalhub/ChannelWorker.h"

#include "portalhub/MessageLine.h"
#include "portalhub/SocketName.h"

#include <QDebug>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>

#include <utility>

using namespace channel;

namespace
{

// Bounds the memory that a peer can take which sends faster than the callback returns.
constexpr qint64 ReadBufferSize = qint64{256} * 1024;

bool endRequested()
{
    return QThread::currentThread()->isInterruptionRequested();
}

} // namespace

ChannelWorker::ChannelWorker(QString serverName, std::chrono::milliseconds reconnectInterval,
                             OutgoingQueue& outgoing, Deliver deliver,
                             std::shared_ptr<EndSignal> ended)
    : m_serverName(std::move(serverName))
    , m_reconnectInterval(reconnectInterval)
    , m_outgoing(outgoing)
    , m_deliver(std::move(deliver))
    , m_ended(std::move(ended))
    , m_reader(MaxLineLength)
{
    connect(this, &ChannelWorker::outgoingWaiting, this, &ChannelWorker::sendWaiting,
            Qt::QueuedConnection);
}

ChannelWorker::~ChannelWorker()
{
    if (m_socket) {
        m_socket->disconnect(this);
        sendWaiting(); // messages that were pushed just before the end
    }
    m_outgoing.close();
    m_ended->set();
}

void ChannelWorker::start()
{
    m_socket = new QLocalSocket(this);
    m_socket->setReadBufferSize(ReadBufferSize);
    connect(m_socket, &QLocalSocket::connected, this, &ChannelWorker::onConnected);
    connect(m_socket, &QLocalSocket::disconnected, this, &ChannelWorker::onDisconnected);
    connect(m_socket, &QLocalSocket::readyRead, this, &ChannelWorker::readLines);
    connect(m_socket, &QLocalSocket::bytesWritten, this,
            [this] { m_outgoing.setUnwritten(m_socket->bytesToWrite()); });

    m_folder = new QFileSystemWatcher(this);
    connect(m_folder, &QFileSystemWatcher::directoryChanged, this, &ChannelWorker::tryConnect);
    m_reconnectTimer = new QTimer(this);
    m_reconnectTimer->setInterval(m_reconnectInterval);
    connect(m_reconnectTimer, &QTimer::timeout, this, &ChannelWorker::tryConnect);
    tryConnect();
}

void ChannelWorker::tryConnect()
{
    if (m_socket->state() != QLocalSocket::UnconnectedState)
        return;
    if (isServerAwaited()) {
        m_reconnectTimer->stop();
        return;
    }
    if (!m_reconnectTimer->isActive())
        m_reconnectTimer->start();
    m_socket->connectToServer(m_serverName);
}

// The folder is watched before the look at the file, so that no server is missed in between.
bool ChannelWorker::isServerAwaited()
{
    const QString folder = folderOfSocket(m_serverName);
    if (folder.isEmpty())
        return false;
    const bool isWatched = !m_folder->directories().isEmpty() || m_folder->addPath(folder);
    return isWatched && !QFileInfo::exists(m_serverName);
}

void ChannelWorker::onConnected()
{
    m_reconnectTimer->stop();
    if (const QStringList folders = m_folder->directories(); !folders.isEmpty())
        m_folder->removePaths(folders);
    m_reader.reset();
    m_malformed = 0;
    m_outgoing.open();
}

void ChannelWorker::onDisconnected()
{
    m_outgoing.close();
    readLines();
    reportSkipped();
    if (!isServerAwaited())
        m_reconnectTimer->start();
}

void ChannelWorker::readLines()
{
    Q_ASSERT(thread() == QThread::currentThread());
    while (m_socket->bytesAvailable() > 0) {
        m_reader.append(m_socket->readAll());
        while (const auto line = m_reader.next()) {
            if (endRequested())
                return;
            handleLine(*line);
        }
    }
}

void ChannelWorker::handleLine(const QByteArray& line)
{
    const auto message = parseLine(line);
    if (!message) {
        ++m_malformed;
        return;
    }
    m_deliver(message->id, message->text.toStdString());
    // Sends the answer before the remaining lines are handled.
    sendWaiting();
}

void ChannelWorker::sendWaiting()
{
    Q_ASSERT(thread() == QThread::currentThread());
    if (m_socket->state() != QLocalSocket::ConnectedState)
        return;
    const QByteArray bytes = m_outgoing.take();
    if (bytes.isEmpty())
        return;
    m_socket->write(bytes);
    m_socket->flush();
    m_outgoing.setUnwritten(m_socket->bytesToWrite());
}

// Reported once per connection, so that a faulty peer cannot fill the log.
void ChannelWorker::reportSkipped()
{
    if (m_malformed > 0 || m_reader.skipped() > 0) {
        qWarning() << "PortalHub: skipped" << m_malformed << "malformed and" << m_reader.skipped()
                   << "overlong lines";
    }
}
