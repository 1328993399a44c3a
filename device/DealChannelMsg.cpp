#include "device/DealChannelMsg.h"

#include "device/CameraReports.h"
#include "device/DisplayReports.h"
#include "logging/Log.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <atomic>
#include <cmath>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto ParseFunction = "DealChannelMsg::PraseJson";

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

/// The integer under the key: 0 when it is absent, none when another value is there.
std::optional<int> readInteger(const QJsonObject& message, QLatin1StringView key)
{
    const QJsonValue value = message[key];
    if (value.isUndefined())
        return 0;
    const int number = value.toInt(0);
    if (number != value.toInt(1)) // each is the value for what is no integer
        return std::nullopt;
    return number;
}

std::optional<bool> readFlag(const QJsonObject& message, QLatin1StringView key)
{
    const auto number = readInteger(message, key);
    return number ? std::optional(*number != 0) : std::nullopt;
}

/// The volume within its range: any other number counts as the nearest one in it.
std::optional<int> readVolume(const QJsonObject& message)
{
    const QJsonValue value = message["volume"_L1];
    if (!value.isUndefined() && !value.isDouble())
        return std::nullopt;
    return static_cast<int>(std::lround(std::clamp(value.toDouble(), 0.0, 100.0)));
}

struct Sources {
    SourceState byod = SourceState::Unavailable;
    SourceState zoom = SourceState::Unavailable;
};

/// A selected source excludes the other one. Without a selection the values count only while the
/// display shows its source picker. None when a value is no integer.
std::optional<Sources> readSources(const QJsonObject& message)
{
    const auto byod = readInteger(message, "byod_status"_L1);
    const auto zoom = readInteger(message, "zoom_status"_L1);
    const auto isPickerShown = readInteger(message, "is_byodui_show"_L1);
    if (!byod || !zoom || !isPickerShown)
        return std::nullopt;
    const auto byodState = static_cast<SourceState>(*byod);
    const auto zoomState = static_cast<SourceState>(*zoom);
    if (byodState == SourceState::Selected)
        return Sources{.byod = SourceState::Selected};
    if (zoomState == SourceState::Selected)
        return Sources{.zoom = SourceState::Selected};
    if (*isPickerShown == 1)
        return Sources{byodState, zoomState};
    return Sources{};
}

} // namespace

DealChannelMsg::DealChannelMsg(DisplayReports& display, CameraReports& camera)
    : m_display(display)
    , m_camera(camera)
    , m_flood(ParseFunction)
{
}

std::optional<std::string> DealChannelMsg::PraseJson(const std::string& msg) const
{
    const auto document = QJsonDocument::fromJson(
        QByteArray::fromRawData(msg.data(), static_cast<qsizetype>(msg.size())));
    if (!document.isObject()) {
        if (m_flood.admits())
            Log::error(ParseFunction)
                << "Failed to parse JSON: "
                << (document.isNull() ? "JSON document is null or invalid format."
                                      : "Root element is not an object.");
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

/// Values of the wrong type leave the state as it is; a message with such an id does nothing.
void DealChannelMsg::dispatch(const QJsonObject& message) const
{
    const auto cmd = readInteger(message, "cmd"_L1);
    if (!cmd)
        return;
    switch (static_cast<ChannelCommand>(*cmd)) {
    case ChannelCommand::ConnectMode:
        if (const auto mode = readInteger(message, "isReady"_L1))
            m_display.setConnectMode(static_cast<ConnectMode>(*mode));
        break;
    case ChannelCommand::Volume:
        m_display.setVolumeReady(1);
        if (const auto volume = readVolume(message))
            m_display.setVolume(*volume, Direction::FromDisplay);
        break;
    case ChannelCommand::SourceState:
        m_display.setShareStatusReady(1);
        if (const auto sources = readSources(message)) {
            m_display.setByodSwitch(sources->byod, Direction::FromDisplay);
            m_display.setZoomSwitch(sources->zoom, Direction::FromDisplay);
        }
        break;
    case ChannelCommand::FirmwareVersion:
        m_display.setRemoteVerReady(1);
        if (const QJsonValue version = message["ota_ver"_L1];
            version.isString() || version.isUndefined())
            m_display.setRemoteVer(version.toString());
        break;
    default:
        dispatchToCamera(static_cast<ChannelCommand>(*cmd), message);
        break;
    }
}

void DealChannelMsg::dispatchToCamera(ChannelCommand cmd, const QJsonObject& message) const
{
    switch (cmd) {
    case ChannelCommand::AutoFraming:
        if (const auto on = readFlag(message, "autoframestatus"_L1))
            m_camera.setAutoFraming(*on, Direction::FromDisplay);
        break;
    case ChannelCommand::SmartFraming:
        if (const auto on = readFlag(message, "smartframestatus"_L1))
            m_camera.setSmartFraming(*on, Direction::FromDisplay);
        break;
    case ChannelCommand::CameraSwitch:
        if (const auto status = readInteger(message, "camerastatus"_L1))
            m_camera.setCameraSwitch(*status);
        break;
    default:
        // Other ids change nothing, but a reply to them is sent as to the others.
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
