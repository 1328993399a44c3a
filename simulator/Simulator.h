#pragma once

#include "simulator/script/CommandInterpreter.h"
#include "simulator/script/EventLog.h"

#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QString>

#include <iosfwd>
#include <memory>

namespace simulator
{

class DevicesFeature;
class DisplayLink;
class Expectations;
class Feature;
class FlowCommands;
class ScriptRunner;

/// Composes what the simulator plays and runs its scripts. Main thread only.
class Simulator : public QObject
{
    Q_OBJECT

public:
    /// Exit codes of the program, beside those that scripts choose.
    enum ExitCode : int { Exit_Failed = 1, Exit_BadUsage = 2 };

    /// @p events receives one JSON object a line, @p errors messages for people. Both must outlive
    /// the simulator.
    Simulator(const QString& socketName, std::ostream& events, std::ostream& errors);
    ~Simulator() override;

    /// All commands, for --help.
    QString commandHelp() const { return m_interpreter.helpText(); }

    /// Checks a scenario file, which starts to run with the event loop. False, with its mistakes
    /// told, when it cannot be read or has any.
    bool loadScenario(const QString& fileName);
    /// Keeps the tree of devices in that folder. False, with the reason told, when it cannot.
    bool openDeviceTree(const QString& folder);
    /// Starts to listen. False, with the reason told, when that fails.
    bool listen();
    /// Takes one command as from standard input.
    void enterCommand(const QString& line);

signals:
    void finished(int exitCode);

private:
    void addFeature(Feature* feature);
    void addOwnCommands();
    void connectLink(Expectations* expectations);
    void connectScripts();
    void scriptFailed(const QString& message);
    void tell(const QString& message);
    QJsonObject status() const;

    EventLog m_log;
    std::ostream& m_errors;
    CommandInterpreter m_interpreter;
    std::unique_ptr<DisplayLink> m_link;
    QList<Feature*> m_features; // children
    DevicesFeature* m_devices = nullptr;
    FlowCommands* m_flow = nullptr;
    ScriptRunner* m_scenario = nullptr;
    ScriptRunner* m_input = nullptr;
};

} // namespace simulator
