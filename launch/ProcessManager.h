#pragma once

#include "launch/MeetingLauncher.h"
#include "launch/ProgramControl.h"

#include <QString>
#include <QStringList>

#include <stop_token>

/// The other programs of this PC: starts them, ends them by image name, restarts those that are
/// missing, and finds where Zoom and Teams are installed.
///
/// Any thread. Every operation blocks its caller; on the main thread only killProcess() is short
/// enough. True means success. Every failure is logged.
class ProcessManager final : public ProgramControl, public MeetingLauncher
{
public:
    /// @param googleMeetingUrl  page that a Google Meet meeting starts with
    explicit ProcessManager(QString googleMeetingUrl);

    /// Starts the executable at this path, detached, without arguments.
    static bool startProcess(const QString& path);
    bool startProcess(const QString& name, const QStringList& arguments,
                      const std::stop_token& stop) override;
    /// At most 30 s, on the main thread 1.5 s.
    bool killProcess(const QString& name, const std::stop_token& stop) override;
    /// At most 30 s.
    void keepProcessAlive(const QString& name, const std::stop_token& stop) override;

    /// Path of an existing executable that a registry value names. Quotes and arguments of a
    /// command line and the index of an icon are removed.
    static bool readPathFromRegist(const QString& key, const QString& valueName, QString& path);
    static bool findZoomPath(QString& path);
    static bool findZoomShortcut(QString& shortcut);
    /// Program that a shortcut starts; at most 3 s.
    static bool getShortcutTarget(const QString& shortcut, QString& target);
    static bool findTeamsPath(const QString& folder, const QString& fileName, QString& path);

    bool startZoom() override;
    bool startTeams() override;
    bool openGoogleMeeting() override;

private:
    static bool startTeamsIn(const QString& folder, const QString& fileName);

    const QString m_googleMeetingUrl;
};
