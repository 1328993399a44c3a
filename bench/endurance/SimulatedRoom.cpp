#include "bench/endurance/SimulatedRoom.h"

#include "bench/WaitUntil.h"

#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

SimulatedRoom::SimulatedRoom(const QString& simulator)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process,
                     [this] { readEvents(); });
    m_process.start(simulator, QStringList());
    if (waitForEvent(u"listening"_s).isEmpty())
        qFatal("The simulator does not start.");
    command(u"account listen"_s);
    m_serviceUrl = waitForEvent(u"account-listening"_s)[u"url"_s].toString();
}

SimulatedRoom::~SimulatedRoom()
{
    m_process.write("quit\n");
    if (!m_process.waitForFinished())
        m_process.kill();
}

void SimulatedRoom::command(const QString& line)
{
    m_events.clear();
    m_process.write(line.toUtf8() + '\n');
}

QJsonObject SimulatedRoom::waitForEvent(const QString& name, const Condition& fits)
{
    QJsonObject found;
    bench::waitUntil([&] {
        const auto event = std::ranges::find_if(m_events, [&](const QJsonObject& each) {
            return each[u"event"_s] == name && (!fits || fits(each));
        });
        if (event != m_events.end())
            found = *event;
        return event != m_events.end();
    });
    return found;
}

qsizetype SimulatedRoom::count(const QString& name) const
{
    return std::ranges::count_if(m_events,
                                 [&](const QJsonObject& each) { return each[u"event"_s] == name; });
}

void SimulatedRoom::readEvents()
{
    while (m_process.canReadLine()) {
        const QByteArray line = m_process.readLine();
        const QJsonObject event = QJsonDocument::fromJson(line).object();
        if (event[u"event"_s] == u"failed"_s)
            qFatal("The simulator has failed: %s", line.constData());
        m_events.append(event);
    }
}
