#pragma once

/// Where a change comes from. Only changes of this program are sent to the display or saved, so a
/// value that the display reports is not sent back to it.
enum class Direction : int {
    FromProgram = 0,
    FromDisplay = 1,
};

/// The display's connection as it reports it. Any other value comes from a display that this
/// program does not support.
enum class ConnectMode : int {
    None = 0,
    Connected = 1,
    /// Connected, and waiting for its first-run set-up.
    Setup = 2,
};

/// State of one of the two sources, BYOD and room meeting.
enum class SourceState : int {
    Unavailable = 0,
    Available = 1,
    Selected = 2,
};
