#pragma once

#include <QString>
#include <QStringList>

#include <chrono>

/// Shortcuts to programs: .lnk files on Windows, desktop entries on Linux. Any thread.
namespace platform
{

struct ShortcutTarget {
    bool finished = false; ///< false: the query did not end in time or could not start
    QString processError;  ///< why, when not finished
    int exitCode = -1;     ///< 0: `output` holds the target
    QString errorOutput;   ///< why, when the code is not 0
    QString output;        ///< the target as the shortcut names it; need not exist
};

/// Asks the system for the program a shortcut starts; blocks for at most `patience`.
[[nodiscard]] ShortcutTarget shortcutTarget(const QString& path,
                                            std::chrono::milliseconds patience);

/// File name of the shortcut with this title: "Title.lnk" or "Title.desktop".
[[nodiscard]] QString shortcutFileName(const QString& title);

/// First shortcut with one of these titles that a software package put into the system's own
/// folders; empty when there is none, and always on Windows, where packages use the Start menu.
[[nodiscard]] QString packagedShortcut(const QStringList& titles);

} // namespace platform
