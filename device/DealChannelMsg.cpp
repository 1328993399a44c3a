#include "device/DealChannelMsg.h"

#include "device/CameraReports.h"
#include "device/DisplayReports.h"
#include "logging/Log.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <atomic>

using namespace Qt::StringLiterals;

namespace
{

std::string compact(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

ChannelMessage buildMessage(ChannelCommand cmd, ChannelMessageType type, QJsonObject payload = {})
{
    static std::atomic<int> s_seq{0};
    payload["cmd"_L1] = static_cast<int>(cmd);
    payload["seq"_L1] = ++s_seq;
    payload["type"_L1] = static_cast<int>(type);
    return {cmd, compact(payload)};
}

ChannelMessage buildCommandWith(ChannelCommand cmd, const QJsonObject& payload)
{
    return buildMessage(cmd, ChannelMessageType::Command, payload);
}

struct Sources {
    SourceState byod = SourceState::Unavailable;
    SourceState zoom = SourceState::Unavailable;
};

/// A selected source excludes the other one. Without a selection the values count only while the
/// display shows its source picker.
Sources readSources(const QJsonObject& message)
{
    const auto byod = static_cast<SourceState>(message["byod_status"_L1].toInt());
    const auto zoom = static_cast<SourceState>(message["zoom_status"_L1].toInt());
    if (byod == SourceState::Selected)
        return {.byod = SourceState::Selected};
    if (zoom == SourceState::Selected)
        return {.zoom = SourceState::Selected};
    if (message["is_byodui_show"_L1].toInt() == 1)
        return {byod, zoom};
    return {};
}

} // namespace

DealChannelMsg::DealChannelMsg(DisplayReports& display, CameraReports& camera)
    : m_display(display)
    , m_camera(camera)
{
}

std::optional<std::string> DealChannelMsg::PraseJson(const std::string& msg) const
{
    const auto document = QJsonDocument::fromJson(
        QByteArray::fromRawData(msg.data(), static_cast<qsizetype>(msg.size())));
    if (document.isNull()) {
        Log::error("DealChannelMsg::PraseJson")
            << "Failed to parse JSON: JSON document is null or invalid format.";
        return std::nullopt;
    }
    if (!document.isObject()) {
        Log::error("DealChannelMsg::PraseJson")
            << "Failed to parse JSON: Root element is not an object.";
        return std::nullopt;
    }

    const QJsonObject message = document.object();
    const auto type = static_cast<ChannelMessageType>(message["type"_L1].toInt());
    if (type == ChannelMessageType::Acknowledgement)
        return std::nullopt;

    dispatch(message);

    if (type != ChannelMessageType::Query && type != ChannelMessageType::Command)
        return std::nullopt;
    QJsonObject answer = message;
    answer["type"_L1] =
        static_cast<int>(type == ChannelMessageType::Query ? ChannelMessageType::Answer
                                                           : ChannelMessageType::Acknowledgement);
    return compact(answer);
}

void DealChannelMsg::dispatch(const QJsonObject& message) const
{
    constexpr auto FromDisplay = Direction::FromDisplay;
    switch (static_cast<ChannelCommand>(message["cmd"_L1].toInt())) {
    case ChannelCommand::ConnectMode:
        m_display.setConnectMode(static_cast<ConnectMode>(message["isReady"_L1].toInt()));
        break;
    case ChannelCommand::Volume:
        m_display.setVolumeReady(1);
        m_display.setVolume(std::clamp(message["volume"_L1].toInt(), 0, 100), FromDisplay);
        break;
    case ChannelCommand::SourceState: {
        m_display.setShareStatusReady(1);
        const Sources source = readSources(message);
        m_display.setByodSwitch(source.byod, FromDisplay);
        m_display.setZoomSwitch(source.zoom, FromDisplay);
        break;
    }
    case ChannelCommand::FirmwareVersion:
        m_display.setRemoteVerReady(1);
        m_display.setRemoteVer(message["ota_ver"_L1].toString());
        break;
    case ChannelCommand::AutoFraming:
        m_camera.setAutoFraming(message["autoframestatus"_L1].toInt() != 0, FromDisplay);
        break;
    case ChannelCommand::SmartFraming:
        m_camera.setSmartFraming(message["smartframestatus"_L1].toInt() != 0,
                                 Direction::FromDisplay);
        break;
    case ChannelCommand::CameraSwitch:
        m_camera.setCameraSwitch(message["camerastatus"_L1].toInt());
        break;
    default:
        // Ids that need no action here are answered all the same.
        break;
    }
}

ChannelMessage DealChannelMsg::buildCommand(ChannelCommand cmd)
{
    return buildMessage(cmd, ChannelMessageType::Command);
}

ChannelMessage DealChannelMsg::buildQuery(ChannelCommand cmd)
{
    return buildMessage(cmd, ChannelMessageType::Query);
}

ChannelMessage DealChannelMsg::buildVolume(int volume)
{
    return buildCommandWith(ChannelCommand::Volume, {{u"volume"_s, volume}});
}

ChannelMessage DealChannelMsg::buildByodStatus(SourceState state)
{
    return buildCommandWith(ChannelCommand::SelectByod,
                            {{u"byod_status"_s, static_cast<int>(state)}});
}

ChannelMessage DealChannelMsg::buildZoomStatus(SourceState state)
{
    return buildCommandWith(ChannelCommand::SelectZoom,
                            {{u"zoom_status"_s, static_cast<int>(state)}});
}

ChannelMessage DealChannelMsg::buildAutoFraming(bool on)
{
    return buildCommandWith(ChannelCommand::AutoFraming, {{u"autoframestatus"_s, on ? 1 : 0}});
}

ChannelMessage DealChannelMsg::buildSmartFraming(bool on)
{
    return buildCommandWith(ChannelCommand::SmartFraming, {{u"smartframestatus"_s, on ? 1 : 0}});
}

ChannelMessage DealChannelMsg::buildCameraScale(int scaleType, int scaleStatus)
{
    return buildCommandWith(ChannelCommand::CameraScale, {{u"cmdtype"_s, u"CameraControl"_s},
                                                          {u"control"_s, u"scale"_s},
                                                          {u"scaletype"_s, scaleType},
                                                          {u"scalestatus"_s, scaleStatus}});
}

ChannelMessage DealChannelMsg::buildCameraPreset(int presetIndex, int presetStatus)
{
    return buildCommandWith(ChannelCommand::CameraPreset, {{u"cmdtype"_s, u"CameraControl"_s},
                                                           {u"control"_s, u"preset"_s},
                                                           {u"presetindex"_s, presetIndex},
                                                           {u"presetstatus"_s, presetStatus}});
}
