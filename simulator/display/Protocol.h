#pragma once

namespace simulator
{

/// Ids of the messages between the program and the display ("cmd").
enum class ChannelCommand : int {
    IsReady = 0,
    Volume = 1,
    Source = 6,
    SelectByod = 9,
    SelectZoom = 10,
    Version = 11,
    StartByod = 12,
    AutoFraming = 13,
    QueryAutoFraming = 14,
    SmartFraming = 15,
    QuerySmartFraming = 16,
    CameraScale = 18,
    CameraPreset = 19,
    Camera = 21,
    StartSetup = 22,
};

/// Purpose of a message ("type").
enum class MessageType : int { Query = 0, Answer = 1, Report = 2, Acknowledgement = 3 };

} // namespace simulator
