#include "platform/Shortcuts.h"

#include "platform/linux/DesktopEntry.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 EntryLimit = 1 << 20; // bytes; real entries are far smaller

platform::ShortcutTarget failure(const QString& why)
{
    return {.finished = true, .processError = {}, .exitCode = 1, .errorOutput = why, .output = {}};
}

} // namespace

namespace platform
{

ShortcutTarget shortcutTarget(const QString& path, std::chrono::milliseconds)
{
    QFile file(path);
    // Opening a named pipe would block until somebody writes to it.
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        return failure(u"not a regular file"_s);
    if (!file.open(QIODevice::ReadOnly))
        return failure(file.errorString());
    const auto program = programOfDesktopEntry(file.read(EntryLimit));
    if (!program)
        return failure(u"no program in the desktop entry"_s);

    const QString found =
        program->contains(u'/') ? *program : QStandardPaths::findExecutable(*program);
    return {.finished = true,
            .processError = {},
            .exitCode = 0,
            .errorOutput = {},
            .output = found.isEmpty() ? *program : found};
}

QString shortcutFileName(const QString& title)
{
    return title + ".desktop"_L1;
}

QString packagedShortcut(const QStringList& titles)
{
    for (const QString& title : titles) {
        QString path =
            QStandardPaths::locate(QStandardPaths::ApplicationsLocation, shortcutFileName(title));
        if (!path.isEmpty())
            return path;
    }
    return {};
}

} // namespace platform
