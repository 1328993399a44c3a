#include "simulator/display/DisplayCamera.h"

#include "simulator/display/DisplayModel.h"
#include "simulator/script/CommandInterpreter.h"
#include "simulator/script/EventLog.h"

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype MaxRecorded = 100;
constexpr int MovementInterval = 33; // milliseconds, the interval of the frames

QJsonObject flag(const QString& key, bool value)
{
    return {{key, value ? 1 : 0}};
}

} // namespace

DisplayCamera::DisplayCamera(DisplayModel& display, EventLog& log, QObject* parent)
    : Feature(parent)
    , m_display(display)
    , m_log(log)
{
    m_movement.setInterval(MovementInterval);
    connect(&m_movement, &QTimer::timeout, this, &DisplayCamera::move);
    addHandlers();
}

void DisplayCamera::addHandlers()
{
    // The answers to both framing queries carry the ids of the reports.
    const auto answerAuto = [this](const QJsonObject& query) {
        m_display.answer(query, ChannelCommand::AutoFraming,
                         flag(u"autoframestatus"_s, m_autoFraming));
    };
    const auto answerSmart = [this](const QJsonObject& query) {
        m_display.answer(query, ChannelCommand::SmartFraming,
                         flag(u"smartframestatus"_s, m_smartFraming));
    };
    m_display.on(ChannelCommand::QueryAutoFraming, MessageType::Query, answerAuto);
    m_display.on(ChannelCommand::AutoFraming, MessageType::Query, answerAuto);
    m_display.on(ChannelCommand::QuerySmartFraming, MessageType::Query, answerSmart);
    m_display.on(ChannelCommand::SmartFraming, MessageType::Query, answerSmart);
    m_display.on(ChannelCommand::Camera, MessageType::Query, [this](const QJsonObject& query) {
        m_display.answer(query, ChannelCommand::Camera, flag(u"camerastatus"_s, m_on));
    });
    m_display.on(ChannelCommand::AutoFraming, MessageType::Report,
                 [this](const QJsonObject& message) {
                     m_autoFraming = message.value("autoframestatus"_L1).toInt() != 0;
                     stateChanged();
                 });
    m_display.on(ChannelCommand::SmartFraming, MessageType::Report,
                 [this](const QJsonObject& message) {
                     m_smartFraming = message.value("smartframestatus"_L1).toInt() != 0;
                     stateChanged();
                 });
    m_display.on(ChannelCommand::CameraScale, MessageType::Report,
                 [this](const QJsonObject& message) {
                     record(message);
                     steer(message);
                 });
    m_display.on(ChannelCommand::CameraPreset, MessageType::Report,
                 [this](const QJsonObject& message) {
                     record(message);
                     usePreset(message);
                 });
}

void DisplayCamera::steer(const QJsonObject& message)
{
    constexpr int Down = 0;
    move(); // completes the movement up to now, before the keys change
    const int key = message.value("scaletype"_L1).toInt(-1);
    if (message.value("scalestatus"_L1).toInt() == Down)
        m_head.press(key);
    else
        m_head.release(key);
    if (m_head.isMoving() == m_movement.isActive())
        return;
    if (m_head.isMoving()) {
        m_sinceMoved.start();
        m_movement.start();
        return;
    }
    m_movement.stop();
    m_sinceMoved.invalidate();
    stateChanged();
}

void DisplayCamera::move()
{
    if (!m_sinceMoved.isValid())
        return;
    m_head.advance(double(m_sinceMoved.nsecsElapsed()) / 1e9);
    m_sinceMoved.start();
    emit viewChanged();
}

void DisplayCamera::usePreset(const QJsonObject& message)
{
    constexpr int Recall = 0;
    const int number = message.value("presetindex"_L1).toInt(-1);
    if (message.value("presetstatus"_L1).toInt() == Recall)
        m_head.recall(number);
    else
        m_head.save(number);
    stateChanged();
    emit viewChanged();
}

std::optional<CameraView> DisplayCamera::view() const
{
    return m_on ? std::optional(m_head.view()) : std::nullopt;
}

void DisplayCamera::record(const QJsonObject& message)
{
    m_commands.append(message);
    if (m_commands.size() > MaxRecorded)
        m_commands.removeFirst();
    m_log.write(u"camera-command"_s, {{u"message"_s, message}});
    emit changed();
}

void DisplayCamera::setOn(bool on)
{
    m_on = on;
    stateChanged();
    emit viewChanged();
    m_display.report(ChannelCommand::Camera, flag(u"camerastatus"_s, m_on));
}

void DisplayCamera::setAutoFraming(bool on)
{
    m_autoFraming = on;
    stateChanged();
    m_display.report(ChannelCommand::AutoFraming, flag(u"autoframestatus"_s, m_autoFraming));
}

void DisplayCamera::setSmartFraming(bool on)
{
    m_smartFraming = on;
    stateChanged();
    m_display.report(ChannelCommand::SmartFraming, flag(u"smartframestatus"_s, m_smartFraming));
}

void DisplayCamera::stateChanged()
{
    QJsonObject state = status();
    state.remove("commands"_L1); // each has an event of its own
    m_log.write(u"camera"_s, state);
    emit changed();
}

QJsonObject DisplayCamera::status() const
{
    QJsonObject status = m_head.status();
    status.insert(u"on"_s, m_on);
    status.insert(u"autoFraming"_s, m_autoFraming);
    status.insert(u"smartFraming"_s, m_smartFraming);
    status.insert(u"commands"_s, m_commands);
    return status;
}

QString DisplayCamera::name() const
{
    return u"camera"_s;
}

void DisplayCamera::addCommands(CommandInterpreter& interpreter)
{
    interpreter.addSwitch(u"camera"_s, u"Switches the camera (on)."_s,
                          [this](bool on) { setOn(on); });
    interpreter.addSwitch(u"autoframing"_s, u"Switches auto framing (off)."_s,
                          [this](bool on) { setAutoFraming(on); });
    interpreter.addSwitch(u"smartframing"_s, u"Switches smart framing (off)."_s,
                          [this](bool on) { setSmartFraming(on); });
}
