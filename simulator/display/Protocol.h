#pragma once

namespace simulator
{

/// Ids of the messages between a program and its display ("cmd").
enum ChannelCommand : int {
    Cmd_IsReady = 0,
    Cmd_Volume = 1,
    Cmd_Source = 6,
    Cmd_SelectByod = 9,
    Cmd_SelectZoom = 10,
    Cmd_Version = 11,
    Cmd_StartByod = 12,
    Cmd_AutoFraming = 13,
    Cmd_QueryAutoFraming = 14,
    Cmd_SmartFraming = 15,
    Cmd_QuerySmartFraming = 16,
    Cmd_CameraScale = 18,
    Cmd_CameraPreset = 19,
    Cmd_Camera = 21,
    Cmd_StartSetup = 22,
};

/// What a message is for ("type").
enum class MessageType : int { Query = 0, Answer = 1, Report = 2, Acknowledgement = 3 };

} // namespace simulator
