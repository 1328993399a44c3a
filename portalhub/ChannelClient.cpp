#include "portalhub/ChannelClient.h"

#include "portalhub/ChannelWorker.h"
#include "portalhub/MessageLine.h"

#include <QThread>

#include <utility>

using namespace channel;
using namespace Qt::StringLiterals;
using PortalHubApi::ErrorCode;

ChannelClient::ChannelClient(QString serverName, std::chrono::milliseconds reconnectInterval,
                             qsizetype capacity)
    : m_serverName(std::move(serverName))
    , m_reconnectInterval(reconnectInterval)
    , m_outgoing(capacity)
{
}

ChannelClient::~ChannelClient()
{
    stop();
}

ErrorCode ChannelClient::initChannel(Callback callback)
{
    std::shared_ptr<const Callback> replaced; // destroyed after the lock is released
    const std::scoped_lock lock(m_mutex);
    if (m_thread && !m_worker)
        return ErrorCode::NotAvailable;
    replaced = std::move(m_callback);
    if (callback) {
        m_callback = std::make_shared<const Callback>(std::move(callback));
        if (!m_thread)
            start();
    }
    return ErrorCode::Success;
}

void ChannelClient::start()
{
    m_thread = std::make_unique<QThread>();
    m_thread->setObjectName(u"PortalHub"_s);
    m_ended = std::make_shared<EndSignal>();
    m_worker = new ChannelWorker(
        m_serverName, m_reconnectInterval, m_outgoing,
        [this](int id, const std::string& text) { deliver(id, text); }, m_ended);
    m_worker->moveToThread(m_thread.get());
    QObject::connect(m_thread.get(), &QThread::started, m_worker, &ChannelWorker::start);
    QObject::connect(m_thread.get(), &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread->start();
}

void ChannelClient::deliver(int id, const std::string& text)
{
    std::shared_ptr<const Callback> callback;
    {
        const std::scoped_lock lock(m_mutex);
        callback = m_callback;
    }
    if (callback)
        (*callback)(id, text);
}

ErrorCode ChannelClient::pushMsg(int id, const std::string& msg)
{
    const QByteArray line = encodeLine(id, msg);
    if (line.size() - 1 > MaxLineLength)
        return ErrorCode::MessageTooLong;
    switch (m_outgoing.push(line)) {
    case OutgoingQueue::Result::Closed:
        return ErrorCode::NotConnected;
    case OutgoingQueue::Result::Full:
        return ErrorCode::BufferFull;
    case OutgoingQueue::Result::FirstWaiting: {
        const std::scoped_lock lock(m_mutex);
        if (m_worker)
            emit m_worker->outgoingWaiting();
        break;
    }
    case OutgoingQueue::Result::Accepted:
        break;
    }
    return ErrorCode::Success;
}

bool ChannelClient::stop(QDeadlineTimer deadline)
{
    std::unique_ptr<QThread> thread;
    std::shared_ptr<const Callback> callback;
    std::shared_ptr<EndSignal> ended;
    {
        const std::scoped_lock lock(m_mutex);
        thread = std::move(m_thread);
        callback = std::move(m_callback);
        ended = std::move(m_ended);
        m_worker = nullptr;
    }
    if (!thread)
        return true;
    thread->requestInterruption();
    thread->quit();
    if (QThread::currentThread() != thread.get() && ended->wait(deadline) && thread->wait())
        return true;
    // The callback is still running. The next stop(), at the latest that of the destructor, waits
    // for it again.
    const std::scoped_lock lock(m_mutex);
    m_thread = std::move(thread);
    m_ended = std::move(ended);
    return false;
}
