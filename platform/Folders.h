#pragma once

#include <QString>

/// Locations of the program's files and of the user's folders. Any thread.
namespace platform
{

/// Folder of the log files, without a trailing separator; created when missing.
[[nodiscard]] QString programDataFolder();

/// Folder that old log files are moved to, with a trailing separator; not created.
[[nodiscard]] QString logBackupFolder();

/// Folder of config.ini, config.json and userdata.db, without a trailing separator: the folder of
/// the executable. If that folder is not writable, a folder of the user, which is created with
/// copies of the two configuration files. Needs the application object.
[[nodiscard]] QString settingsFolder();

/// The user's folder of program shortcuts (Windows: the Start menu's "Programs").
[[nodiscard]] QString startMenuFolder();

[[nodiscard]] QString desktopFolder();

/// Folder that programs installed for one user keep their data in (Windows: AppData\Local).
[[nodiscard]] QString localDataFolder();

/// File name that a Windows program has on this system: "Zoom.exe" on Windows, "Zoom" on Linux.
[[nodiscard]] QString executableFileName(const QString& name);

/// Path of a program in the application's folder; `name` ends in ".exe". On Linux, if the folder
/// does not hold it, the bare name, which is looked up in PATH. Needs the application object.
[[nodiscard]] QString programBesideApplication(const QString& name);

} // namespace platform
