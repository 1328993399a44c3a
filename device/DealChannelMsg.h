#pragma once

#include "device/ChannelMessage.h"
#include "device/DisplayValues.h"

#include "logging/FloodLimit.h"

#include <optional>
#include <string>

class CameraReports;
class DisplayReports;
class QJsonObject;

/// The JSON protocol of the display's channel: builds the messages of this program and parses those
/// of the display. Any thread.
class DealChannelMsg
{
public:
    /// Both sinks have to outlive this object.
    DealChannelMsg(DisplayReports& display, CameraReports& camera);

    /// Parses one message and passes its content to the sinks on the calling thread. Text that is
    /// not a JSON object is logged as an error.
    /// @return the text of the reply, if the message asks for one; to be sent under the id under
    ///         which the message arrived
    [[nodiscard]] std::optional<std::string> PraseJson(const std::string& msg) const;

    // Each builder takes the next number of a sequence that is common to the process; the first
    // message carries 1.
    static ChannelMessage buildCommand(ChannelCommand cmd);
    static ChannelMessage buildQuery(ChannelCommand cmd);
    static ChannelMessage buildVolume(int volume);
    static ChannelMessage buildByodStatus(SourceState state);
    static ChannelMessage buildZoomStatus(SourceState state);
    static ChannelMessage buildAutoFraming(bool on);
    static ChannelMessage buildSmartFraming(bool on);
    static ChannelMessage buildCameraScale(int scaleType, int scaleStatus);
    static ChannelMessage buildCameraPreset(int presetIndex, int presetStatus);

private:
    void dispatch(const QJsonObject& message) const;
    void dispatchToCamera(ChannelCommand cmd, const QJsonObject& message) const;

    DisplayReports& m_display;
    CameraReports& m_camera;
    mutable Log::FloodLimit m_flood; // of errors
};
