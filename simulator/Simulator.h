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

/// Composes the features of the simulator and runs its scripts. Main thread only.
class Simulator : public QObject
{
    Q_OBJECT

public:
    /// Exit codes of the program, in addition to those that scripts choose.
    enum ExitCode : int { ExitFailed = 1, ExitBadUsage = 2 };

    /// @p events receives one JSON object per line, @p errors the messages for people. Both must
    /// outlive the simulator.
    Simulator(const QString& socketName, std::ostream& events, std::ostream& errors);
    ~Simulator() override;

    /// All commands, for --help.
    QString commandHelp() const { return m_interpreter.helpText(); }

    /// Reads and checks a scenario file, which starts with the event loop. Prints the errors and
    /// returns false if it cannot be read or has errors.
    bool loadScenario(const QString& fileName);
    /// Keeps the device tree in @p folder. Prints the reason and returns false on failure.
    bool openDeviceTree(const QString& folder);
    /// Starts to listen. Prints the reason and returns false on failure.
    bool listen();
    /// Runs one command of standard input.
    void enterCommand(const QString& line);

signals:
    void finished(int exitCode);

private:
    void addFeature(Feature* feature);
    void addOwnCommands();
    void connectLink(Expectations* expectations);
    void connectScripts();
    void scriptFailed(const QString& message);
    void printError(const QString& message);
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
