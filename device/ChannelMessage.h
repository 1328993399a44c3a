#pragma once

#include <string>

/// Ids ("cmd") of the messages exchanged with the display. A message of the display may carry any
/// other number.
enum class ChannelCommand : int {
    ConnectMode = 0,
    Volume = 1,
    SourceState = 6,
    SelectByod = 9,
    SelectZoom = 10,
    FirmwareVersion = 11,
    StartByod = 12,
    AutoFraming = 13,
    QueryAutoFraming = 14,
    SmartFraming = 15,
    QuerySmartFraming = 16,
    CameraScale = 18,
    CameraPreset = 19,
    CameraSwitch = 21,
    StartSetup = 22,
};

/// Value of a message's "type".
enum class ChannelMessageType : int {
    Query = 0,
    Answer = 1,
    Command = 2,
    Acknowledgement = 3,
};

/// One message to the display.
struct ChannelMessage {
    /// The id that the message travels under: its own "cmd", or, for a reply, the id under which
    /// the message to be answered arrived.
    ChannelCommand command;
    /// One JSON object as UTF-8.
    std::string text;
};
