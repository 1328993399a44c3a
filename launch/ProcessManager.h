#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <stop_token>

/// Every dealing with other programs on this PC: starting them, ending them by image name, keeping
/// them alive, and finding where Zoom and Teams are installed. Stateless; any
/// thread. The operations block their caller, of which the main thread can afford killProcess()
/// only. "true" means success, and every failure is logged.
class ProcessManager : public QObject
{
    Q_OBJECT

public:
    /// Starts the executable at this path, detached, without arguments.
    static bool startProcess(const QString& path);
    /// Starts the program of this name beside the application, detached. The log names two
    /// arguments.
    static bool startProcess(const QString& name, const QStringList& arguments);
    /// Ends every process of this image name; at most 30 s, on the main thread 1.5 s.
    static bool killProcess(const QString& name, const std::stop_token& stop = {});
    /// Starts the program of this name beside the application unless it is running; at most 30 s.
    static void keepProcessAlive(const QString& name, const std::stop_token& stop = {});

    /// Path of the existing executable that a registry value names, stripped of the decorations
    /// such values carry: quotes and arguments of a command line, the index of an icon.
    static bool readPathFromRegist(const QString& key, const QString& valueName, QString& path);
    static bool findZoomPath(QString& path);
    static bool findZoomShortcut(QString& shortcut);
    /// Program that a shortcut starts; at most 3 s.
    static bool getShortcutTarget(const QString& shortcut, QString& target);
    static bool findTeamsPath(const QString& folder, const QString& fileName, QString& path);

    static bool startZoom();
    static bool startTeams();
    /// Opens the address in the user's browser. Inverted: true when it could not be opened.
    static bool openGoogleMeeting(const QString& address);

private:
    static bool startTeamsIn(const QString& folder, const QString& fileName);
};
