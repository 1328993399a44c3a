#include "platform/Shortcuts.h"

#include "platform/windows/ChildCommand.h"
#include "platform/windows/SystemTools.h"

#include <QProcess>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

namespace platform
{

ShortcutTarget shortcutTarget(const QString& path, std::chrono::milliseconds patience)
{
    // In the script the path would need quotes, and PowerShell ends a quoted string at five kinds
    // of quotation marks, which folder names may contain.
    const QString variable = u"VORN_SHORTCUT"_s;
    const QString script =
        u"(New-Object -ComObject WScript.Shell).CreateShortcut($env:%1).TargetPath"_s.arg(variable);

    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(variable, path);
    process.setProcessEnvironment(environment);
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
