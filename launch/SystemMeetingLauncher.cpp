#include "launch/SystemMeetingLauncher.h"

#include "launch/ProcessManager.h"

#include <utility>

SystemMeetingLauncher::SystemMeetingLauncher(std::function<QString()> meetingUrl)
    : m_meetingUrl(std::move(meetingUrl))
{
}

bool SystemMeetingLauncher::startZoom()
{
    return ProcessManager::startZoom();
}

bool SystemMeetingLauncher::startTeams()
{
    return ProcessManager::startTeams();
}

bool SystemMeetingLauncher::openGoogleMeeting()
{
    return ProcessManager::openGoogleMeeting(m_meetingUrl());
}
