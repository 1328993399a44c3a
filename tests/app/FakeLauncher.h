#pragma once

#include "launch/MeetingLauncher.h"

#include <QStringList>

/// Records the launches.
class FakeLauncher : public MeetingLauncher
{
public:
    bool startZoom() override { return note(QStringLiteral("zoom")); }
    bool startTeams() override { return note(QStringLiteral("teams")); }
    bool openGoogleMeeting() override { return note(QStringLiteral("google")); }

    QStringList started;

private:
    bool note(const QString& name)
    {
        started += name;
        return false;
    }
};
