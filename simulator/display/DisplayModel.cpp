#include "simulator/display/DisplayModel.h"

#include "simulator/script/EventLog.h"

#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <utility>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

struct SourceState {
    QLatin1StringView name;
    int byod; // 0 unavailable, 1 available, 2 selected
    int zoom;
    int shown; // 1 while the display shows its choice of sources
};

constexpr std::array<SourceState, 4> SourceStates = {{
    {"none"_L1, 0, 0, 0},
    {"available"_L1, 1, 1, 1},
    {"byod"_L1, 2, 1, 1},
    {"zoom"_L1, 1, 2, 1},
}};

} // namespace

DisplayModel::DisplayModel(EventLog& log, QObject* parent)
    : Feature(parent)
    , m_log(log)
    , m_version(u"4.1.0"_s)
{
    addHandlers();
}

void DisplayModel::addHandlers()
{
    on(ChannelCommand::Volume, MessageType::Report,
       [this](const auto& message) { takeVolume(message); });
    on(ChannelCommand::Volume, MessageType::Query, [this](const auto& query) {
        answer(query, ChannelCommand::Volume, {{u"volume"_s, m_volume}});
    });
    on(ChannelCommand::Source, MessageType::Query,
       [this](const auto& query) { answer(query, ChannelCommand::Source, sourcePayload()); });
    on(ChannelCommand::Version, MessageType::Query, [this](const auto& query) {
        answer(query, ChannelCommand::Version, {{u"ota_ver"_s, m_version}});
    });
    on(ChannelCommand::SelectByod, MessageType::Report,
       [this](const auto&) { setSource(Source::Byod); });
    on(ChannelCommand::SelectZoom, MessageType::Report,
       [this](const auto&) { setSource(Source::Zoom); });
    on(ChannelCommand::StartByod, MessageType::Query,
       [this](const auto&) { setSource(Source::Byod); });
    on(ChannelCommand::StartSetup, MessageType::Report, [this](const auto&) { startSetup(); });
}

void DisplayModel::on(ChannelCommand command, MessageType type, const Handler& handler)
{
    m_handlers.insert({int(command), int(type)}, handler);
}

void DisplayModel::receive(int id, const QByteArray& text)
{
    const QJsonObject message = QJsonDocument::fromJson(text).object();
    if (m_mode == 0 || message.isEmpty())
        return;
    const int type = message.value("type"_L1).toInt();
    if (type == int(MessageType::Report) && m_acknowledging)
        acknowledge(id, message);
    if (const Handler handler = m_handlers.value({id, type}))
        handler(message);
}

void DisplayModel::acknowledge(int id, QJsonObject message)
{
    message.insert("type"_L1, int(MessageType::Acknowledgement));
    emit send(id, QJsonDocument(message).toJson(QJsonDocument::Compact));
}

void DisplayModel::greet()
{
    if (m_mode == 0)
        return;
    report(ChannelCommand::IsReady, {{u"isReady"_s, m_mode}});
    report(ChannelCommand::Volume, {{u"volume"_s, m_volume}});
    reportSource();
}

void DisplayModel::report(ChannelCommand command, const QJsonObject& payload)
{
    if (m_mode != 0)
        sendMessage(command, MessageType::Report, ++m_seq, payload);
}

void DisplayModel::answer(const QJsonObject& query, ChannelCommand command,
                          const QJsonObject& payload)
{
    sendMessage(command, MessageType::Answer, query.value("seq"_L1).toInt(), payload);
}

void DisplayModel::sendMessage(ChannelCommand command, MessageType type, int seq,
                               QJsonObject message)
{
    message.insert("cmd"_L1, int(command));
    message.insert("seq"_L1, seq);
    message.insert("type"_L1, int(type));
    emit send(int(command), QJsonDocument(message).toJson(QJsonDocument::Compact));
}

void DisplayModel::connectDisplay(int mode)
{
    m_mode = mode;
    m_setupRunning = false;
    stateChanged();
    greet();
}

void DisplayModel::disconnectDisplay()
{
    // Sent in every state: the program may know a connected display from an earlier simulator.
    sendMessage(ChannelCommand::IsReady, MessageType::Report, ++m_seq, {{u"isReady"_s, 0}});
    m_mode = 0;
    m_setupRunning = false;
    stateChanged();
}

void DisplayModel::setVolume(int volume)
{
    m_volume = volume;
    stateChanged();
    report(ChannelCommand::Volume, {{u"volume"_s, m_volume}});
}

void DisplayModel::takeVolume(const QJsonObject& message)
{
    m_volume = std::clamp(message.value("volume"_L1).toInt(m_volume), 0, 100);
    stateChanged();
}

void DisplayModel::setSource(Source source)
{
    m_source = source;
    stateChanged();
    reportSource();
}

void DisplayModel::setVersion(const QString& version)
{
    m_version = version;
    stateChanged();
    report(ChannelCommand::Version, {{u"ota_ver"_s, m_version}});
}

void DisplayModel::setAcknowledging(bool on)
{
    m_acknowledging = on;
    stateChanged();
}

void DisplayModel::startSetup()
{
    m_setupRunning = true;
    if (std::exchange(m_mode, FirstRun) != FirstRun)
        report(ChannelCommand::IsReady, {{u"isReady"_s, m_mode}});
    stateChanged();
}

void DisplayModel::reportSource()
{
    report(ChannelCommand::Source, sourcePayload());
}

QJsonObject DisplayModel::sourcePayload() const
{
    const SourceState& state = SourceStates.at(size_t(m_source));
    return {{u"byod_status"_s, state.byod},
            {u"zoom_status"_s, state.zoom},
            {u"is_byodui_show"_s, state.shown}};
}

void DisplayModel::stateChanged()
{
    m_log.write(u"display"_s, status());
    emit changed();
}

QJsonObject DisplayModel::status() const
{
    return {{u"mode"_s, m_mode},
            {u"volume"_s, m_volume},
            {u"source"_s, SourceStates.at(size_t(m_source)).name},
            {u"version"_s, m_version},
            {u"setupRunning"_s, m_setupRunning},
            {u"acknowledges"_s, m_acknowledging}};
}
