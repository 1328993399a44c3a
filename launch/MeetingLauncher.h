#pragma once

/// Starts the meeting applications of this PC. The operations block; they run on the task thread.
class MeetingLauncher
{
public:
    virtual ~MeetingLauncher() = default;

    virtual bool startZoom() = 0;
    virtual bool startTeams() = 0;
    /// Opens the Google Meet page in the user's browser. Returns true when that failed.
    virtual bool openGoogleMeeting() = 0;
};
