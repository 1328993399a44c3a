#pragma once

#include <QString>

/// Where the program's files and the user's folders lie. Any thread.
namespace platform
{

/// Folder of the log files, without a trailing separator; created when missing.
[[nodiscard]] QString programDataFolder();

/// Folder that old log files are moved to, with a trailing separator; not created.
[[nodiscard]] QString logBackupFolder();

/// Folder of config.ini, config.json and userdata.db, without a trailing separator. It is the
/// executable's own folder; on Linux, where that one cannot be written, a folder of the user's,
/// which is created and given copies of the two configuration files. Needs the application object.
[[nodiscard]] QString settingsFolder();

/// The user's folder of program shortcuts (Windows: the Start menu's "Programs").
[[nodiscard]] QString startMenuFolder();

[[nodiscard]] QString desktopFolder();

/// Folder that programs installed for one user keep their data in (Windows: AppData\Local).
[[nodiscard]] QString localDataFolder();

/// A Windows program's file name as this system spells it: "Zoom.exe" or "Zoom".
[[nodiscard]] QString executableFileName(const QString& name);

/// The program of this name (with ".exe") in the application's folder. On Linux the bare name where
/// that folder has none, to be looked up in PATH. Needs the application object.
[[nodiscard]] QString programBesideApplication(const QString& name);

} // namespace platform
