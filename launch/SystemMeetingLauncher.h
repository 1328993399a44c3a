#pragma once

#include "launch/MeetingLauncher.h"

#include <QString>

#include <functional>

/// The meeting applications installed on this PC.
class SystemMeetingLauncher final : public MeetingLauncher
{
public:
    /// @param meetingUrl  gives the Google Meet address, asked on the launching thread at each
    /// launch
    explicit SystemMeetingLauncher(std::function<QString()> meetingUrl);

    bool startZoom() override;
    bool startTeams() override;
    bool openGoogleMeeting() override;

private:
    const std::function<QString()> m_meetingUrl;
};
