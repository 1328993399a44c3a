#pragma once

#include "simulator/display/CameraHead.h"
#include "simulator/script/Feature.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QTimer>

#include <optional>

namespace simulator
{

class DisplayModel;
class EventLog;

/// The display's camera: its switch, its view, its framing, and the commands that it received. It
/// moves while a movement key is held down.
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
    /// The current view; nothing while the camera is off.
    std::optional<CameraView> view() const;

signals:
    /// The value of view() has changed.
    void viewChanged();

private:
    void addHandlers();
    void record(const QJsonObject& message);
    void steer(const QJsonObject& message);
    void usePreset(const QJsonObject& message);
    void move();
    void stateChanged();

    DisplayModel& m_display;
    EventLog& m_log;
    CameraHead m_head;
    QTimer m_movement;
    QElapsedTimer m_sinceMoved;
    bool m_on = true;
    bool m_autoFraming = false;
    bool m_smartFraming = false;
    QJsonArray m_commands; // the newest commands for movements and presets
};

} // namespace simulator
