#include "bench/flood/Probe.h"

#include <QDir>
#include <QDirIterator>
#include <QLocalSocket>

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto Interval = 50ms;
constexpr int Patience = 120'000; // milliseconds

double now()
{
    return std::chrono::duration<double, std::milli>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

QString socketIn(const QString& home)
{
    QDirIterator files(home, {u"VORNAppLocalServer*"_s}, QDir::System,
                       QDirIterator::Subdirectories);
    return files.hasNext() ? files.next() : QString();
}

} // namespace

Probe::Probe(QString home)
    : m_home(std::move(home))
    , m_thread([this](const std::stop_token& stop) { run(stop); })
{
}

Probe::~Probe() = default;

void Probe::run(const std::stop_token& stop)
{
    while (!stop.stop_requested()) {
        {
            const std::scoped_lock lock(m_mutex);
            m_asked = now();
        }
        QLocalSocket socket;
        socket.connectToServer(socketIn(m_home));
        socket.waitForConnected(Patience);
        socket.write("activate");
        if (socket.state() == QLocalSocket::ConnectedState)
            socket.waitForDisconnected(Patience);
        {
            const std::scoped_lock lock(m_mutex);
            m_durations.push_back(now() - std::exchange(m_asked, 0));
        }
        ++m_answers;
        std::this_thread::sleep_for(Interval);
    }
}

bench::Values Probe::take()
{
    const std::scoped_lock lock(m_mutex);
    bench::Values durations = std::exchange(m_durations, {});
    if (m_asked > 0)
        durations.push_back(now() - m_asked);
    return durations;
}
