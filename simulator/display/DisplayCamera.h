#pragma once

#include "simulator/script/Feature.h"

#include <QJsonArray>

namespace simulator
{

class DisplayModel;
class EventLog;

/// The display's camera: whether it is on, its framing, and the commands it was given.
class DisplayCamera : public Feature
{
    Q_OBJECT

public:
    /// @p display must outlive the camera.
    DisplayCamera(DisplayModel& display, EventLog& log, QObject* parent = nullptr);

    QString name() const override;
    void addCommands(CommandInterpreter& interpreter) override;
    QJsonObject status() const override;

    void setOn(bool on);
    void setAutoFraming(bool on);
    void setSmartFraming(bool on);

private:
    void addHandlers();
    void addSwitch(CommandInterpreter& interpreter, const QString& name, const QString& help,
                   void (DisplayCamera::*set)(bool));
    void record(const QJsonObject& message);
    void stateChanged();

    DisplayModel& m_display;
    EventLog& m_log;
    bool m_on = true;
    bool m_autoFraming = false;
    bool m_smartFraming = false;
    QJsonArray m_commands; // the newest of what moved the camera or its presets
};

} // namespace simulator
