#pragma once

#include <QString>
#include <QStringList>

#include <chrono>

/// Shortcuts to programs: .lnk files on Windows, desktop entries on Linux. Any thread.
namespace platform
{

struct ShortcutTarget {
    bool finished = false; ///< false: the query could not start or did not end in time
    QString processError;  ///< reason if not finished
    int exitCode = -1;     ///< 0: `output` holds the target
    QString errorOutput;   ///< reason if the code is not 0
    QString output;        ///< the target as the shortcut names it; it need not exist
};

/// Looks up the program that a shortcut starts. Blocks for at most `patience`.
[[nodiscard]] ShortcutTarget shortcutTarget(const QString& path,
                                            std::chrono::milliseconds patience);

/// File name of the shortcut with this title: "Title.lnk" or "Title.desktop".
[[nodiscard]] QString shortcutFileName(const QString& title);

/// First shortcut with one of these titles that a software package installed into a folder of the
/// system. Empty if there is none, and always on Windows, where packages use the Start menu.
[[nodiscard]] QString packagedShortcut(const QStringList& titles);

} // namespace platform
