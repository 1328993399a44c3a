#include "device/DeviceControl.h"

#include "device/VideoReceiver.h"
#include "launch/ProgramControl.h"
#include "logging/Log.h"
#include "persistence/FileInfo.h"
#include "platform/ThreadName.h"

#include <QHostAddress>
#include <QNetworkDatagram>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto ReceiveWait = std::chrono::hours(1); // a datagram or the end comes sooner

DeviceControl* s_instance = nullptr;

/// After the highest number comes the lowest.
int nextFrameIndex(int index)
{
    return static_cast<int>(static_cast<unsigned>(index) + 1U);
}

} // namespace

DeviceControl& DeviceControl::instance()
{
    Q_ASSERT(s_instance);
    return *s_instance;
}

DeviceControl::DeviceControl(Services services)
    : DeviceControl(std::move(services), Timing{})
{
}

DeviceControl::DeviceControl(Services services, Timing timing)
    : m_services(std::move(services))
    , m_timing(timing)
    , m_k4vLowestVer(u"3.9.6"_s)
    , m_upgrade(m_services.programs, m_services.executablePath, timing.pauseAfterUpdaterKill)
    , m_taskQueue(m_services.tasks)
    , m_userImage(u"qrc:/images/user_84x84.png"_s)
    , m_videoReceiver(std::make_unique<VideoReceiver>(
          [this](const QVideoFrame& frame) { m_videoSource.pushFrame(frame); },
          [this] { setFrameIndex(nextFrameIndex(frameIndex())); }))
{
    m_applyTimer.setSingleShot(true);
    connect(
        &m_applyTimer, &QTimer::timeout, &m_applyTimer, [this] { applyUseRemoteDevice(false); },
        Qt::DirectConnection);

    m_taskThread.setObjectName(u"tasks"_s);
    connect(
        &m_taskThread, &QThread::started, &m_taskThread,
        [] { platform::nameCurrentThread("tasks"); }, Qt::DirectConnection);
    m_taskQueue.moveToThread(&m_taskThread);
    connect(this, &DeviceControl::addTask, &m_taskQueue, &TaskQueue::addTask);
    // Names the order that the wait for the thread implies to a race detector that does not see
    // into Qt.
    connect(
        &m_taskThread, &QThread::finished, &m_taskThread,
        [this] { m_taskThreadEnded.store(true, std::memory_order_release); }, Qt::DirectConnection);
    m_taskThread.start(QThread::InheritPriority);

    readConfig();
    m_services.localDevices->ReadJsonConfig(m_services.rulesPath);
    restoreAccount();
    m_udpClient.bind(ReceivePort);
    startWorkers();

    if (!s_instance)
        s_instance = this;
}

DeviceControl::~DeviceControl()
{
    Log::info("DeviceControl::~DeviceControl") << "~DeviceControl";
    if (s_instance == this)
        s_instance = nullptr;
    m_services.programs.killProcess(u"BridgeAgent.exe"_s, {});
    m_applyTimer.stop();
    endThreads();
}

void DeviceControl::endThreads()
{
    m_udpWorker->requestStop();
    m_udpClient.stop();
    m_statusWorker->requestStop();
    m_videoWorker->requestStop();
    m_taskThread.requestInterruption();
    m_taskThread.quit();
    m_taskThread.wait();
    (void)m_taskThreadEnded.load(std::memory_order_acquire);
    for (const auto& worker : {&m_udpWorker, &m_statusWorker, &m_videoWorker})
        (*worker)->end();
    m_upgrade.end();
}

void DeviceControl::readConfig()
{
    const FileInfo& config = m_services.config;
    setK4vLowestVer(config.k4vLowestVer());
    setUseRemoteDevice(config.useRemoteDevice(), 0);
    setSupportLaunchZoom(config.supportLaunchZoom());
    setSupportLaunchTeams(config.supportLaunchTeams());
    setSupportLaunchGoogle(config.supportLaunchGoogle());
}

void DeviceControl::startWorkers()
{
    m_statusWorker = std::make_unique<Worker>(
        "status", [this](const std::stop_token& stop) { DetectProgramStatusProc(stop); });
    m_videoWorker = std::make_unique<Worker>(
        "video", [this](const std::stop_token& stop) { RecvSharedMemoryProc(stop); });
    m_udpWorker = std::make_unique<Worker>(
        "udp receive", [this](const std::stop_token& stop) { RecvUdpDatagram(stop); });
}

int DeviceControl::DealChannelMsg(int id, const std::string& msg)
{
    return instance().handleChannelMessage(id, msg);
}

int DeviceControl::handleChannelMessage(int id, const std::string& msg)
{
    constexpr auto Function = "DeviceControl::DealChannelMsg";
    Log::info(Function) << "recv :" << msg;
    if (const auto reply = ::DealChannelMsg(*this, m_services.camera()).PraseJson(msg)) {
        Log::info(Function) << "reply:" << *reply;
        m_services.channel.push({static_cast<ChannelCommand>(id), *reply});
    }
    return 0;
}

void DeviceControl::RecvSharedMemoryProc(const std::stop_token& stop)
{
    m_videoReceiver->run(stop);
}

void DeviceControl::RecvUdpDatagram(const std::stop_token& stop)
{
    constexpr auto Function = "DeviceControl::RecvUdpDatagram";
    Log::info(Function) << "thread start";
    while (!stop.stop_requested()) {
        QNetworkDatagram datagram;
        if (!m_udpClient.waitForDatagram(datagram, ReceiveWait))
            continue;
        Log::info(Function) << "recv from " << datagram.senderAddress().toString() << ":"
                            << datagram.senderPort() << " [" << UdpClient::hexDump(datagram.data())
                            << "]";
    }
    Log::info(Function) << "thread end";
}
