#pragma once

/// Starts the meeting applications of this PC. Operations block; they run on the task thread.
class MeetingLauncher
{
public:
    virtual ~MeetingLauncher() = default;

    virtual bool startZoom() = 0;
    virtual bool startTeams() = 0;
    /// Inverted: true when the address could not be opened.
    virtual bool openGoogleMeeting() = 0;
};
