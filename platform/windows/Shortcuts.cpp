#include "platform/Shortcuts.h"

#include "platform/windows/ChildCommand.h"
#include "platform/windows/SystemTools.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace platform
{

ShortcutTarget shortcutTarget(const QString& path, std::chrono::milliseconds patience)
{
    // A quote inside a single-quoted PowerShell string is doubled.
    QString quotedPath = path;
    quotedPath.replace(u'\'', u"''"_s);
    const QString script =
        u"(New-Object -ComObject WScript.Shell).CreateShortcut('%1').TargetPath"_s.arg(quotedPath);

    QProcess process;
    ShortcutTarget result;
    result.finished = runCommand(process, systemTool(u"WindowsPowerShell\\v1.0\\powershell.exe"_s),
                                 {u"-Command"_s, script}, patience);
    if (!result.finished) {
        result.processError = process.errorString();
        return result;
    }
    result.exitCode = process.exitCode();
    result.errorOutput = toolOutput(process.readAllStandardError());
    result.output = toolOutput(process.readAllStandardOutput()).trimmed();
    return result;
}

QString shortcutFileName(const QString& title)
{
    return title + ".lnk"_L1;
}

QString packagedShortcut(const QStringList&)
{
    return {};
}

} // namespace platform
