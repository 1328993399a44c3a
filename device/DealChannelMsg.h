#pragma once

#include "device/ChannelCommand.h"
#include "device/MessageChannel.h"

#include <string>

class CameraReports;
class DisplayReports;
class QJsonObject;

/// The JSON protocol of the display's channel: builds what this program sends and understands what
/// the display reports. Any thread.
class DealChannelMsg
{
public:
    /// Both sinks have to outlive this object.
    DealChannelMsg(DisplayReports& display, CameraReports& camera);

    /// Parses one message and hands its content to the sinks on the calling thread.
    /// @param reply      the text to send back under the id it came in with, set when needReply is
    /// @param needReply  false on entry; true on return when the message asks for a reply
    /// @return false only when the text is not a JSON object
    bool PraseJson(const std::string& msg, std::string& reply, bool& needReply) const;

    // Each builder takes the next number of the process-wide sequence, the first message
    // carrying 1.
    static std::string buildCommand(ChannelCommand cmd);
    static std::string buildQuery(ChannelCommand cmd);
    static std::string buildVolume(int volume);
    static std::string buildByodStatus(int byodStatus);
    static std::string buildZoomStatus(int zoomStatus);
    static std::string buildAutoFraming(bool on);
    static std::string buildSmartFraming(bool on);
    static std::string buildCameraScale(int scaleType, int scaleStatus);
    static std::string buildCameraPreset(int presetIndex, int presetStatus);

    /// Logs the text as sent by `function` and sends it.
    static void send(MessageChannel& channel, const char* function, ChannelCommand cmd,
                     const std::string& text);

private:
    void dispatch(const QJsonObject& message) const;

    DisplayReports& m_display;
    CameraReports& m_camera;
};
