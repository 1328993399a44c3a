#pragma once

#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QString>

#include <functional>

/// The simulator in a process of its own: the display, its screen, and the account service. A
/// command that it refuses ends the benchmark.
class SimulatedRoom
{
public:
    using Condition = std::function<bool(const QJsonObject& event)>;

    /// Starts the simulator and its account service.
    explicit SimulatedRoom(const QString& simulator);
    ~SimulatedRoom();
    Q_DISABLE_COPY_MOVE(SimulatedRoom)

    /// Address of the account service.
    const QString& serviceUrl() const { return m_serviceUrl; }

    /// Runs a command. Events that came before it are forgotten.
    void command(const QString& line);
    /// Waits for an event after the last command. Empty if it does not come.
    QJsonObject waitForEvent(const QString& name, const Condition& fits = {});
    /// Number of events of this name since the last command.
    qsizetype count(const QString& name) const;

private:
    void readEvents();

    QProcess m_process;
    QList<QJsonObject> m_events;
    QString m_serviceUrl;
};
