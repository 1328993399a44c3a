#include "launch/ProcessManager.h"

#include "logging/Log.h"
#include "platform/Browser.h"
#include "platform/Folders.h"
#include "platform/Processes.h"
#include "platform/Registry.h"
#include "platform/Shortcuts.h"
#include "platform/StopRequest.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>
#include <QUrl>

#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::chrono::seconds CommandPatience{30};
// The main thread ends a companion program during the quit, which must not take long.
constexpr std::chrono::milliseconds MainThreadPatience{1'500};
constexpr std::chrono::seconds ShortcutPatience{3};

constexpr QLatin1StringView ZoomUninstallKey{
    "HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\ZoomUMX"};
constexpr QLatin1StringView TeamsAppPathKey{
    "HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\ms-teams.exe"};
constexpr QLatin1StringView TeamsUrlHandlerKey{
    "HKEY_CURRENT_USER\\SOFTWARE\\Classes\\TeamsURL\\shell\\open\\command"};

constexpr QLatin1StringView ZoomShortcutTitle{"Zoom Workplace"};
/// Title of the entry that Zoom's own Linux packages install.
constexpr QLatin1StringView ZoomPackageTitle{"Zoom"};

bool isExistingPath(const QString& path)
{
    return !path.isEmpty() && QFileInfo::exists(path);
}

bool isMainThread()
{
    const QCoreApplication* const application = QCoreApplication::instance();
    return application && QThread::currentThread() == application->thread();
}

} // namespace

ProcessManager::ProcessManager(QString googleMeetingUrl)
    : m_googleMeetingUrl(std::move(googleMeetingUrl))
{
}

bool ProcessManager::startProcess(const QString& path)
{
    constexpr auto Function = "ProcessManager::startProcess";
    Log::info(Function) << "path:" << path;
    if (!platform::startDetached(path, {})) {
        if (platform::mustEnd())
            return false; // nothing failed, the program ends
        Log::error(Function) << "started process failed:";
        return false;
    }
    Log::info(Function) << "started process success";
    return true;
}

bool ProcessManager::startProcess(const QString& name, const QStringList& arguments,
                                  const std::stop_token& stop)
{
    constexpr auto Function = "ProcessManager::startProcess";
    const bool started =
        platform::startDetached(platform::programBesideApplication(name), arguments, stop);
    const QString call = name + u' ' + arguments.value(0) + u' ' + arguments.value(1);
    if (started)
        Log::info(Function) << "started process success, " << call;
    else if (platform::mustEnd(stop))
        Log::info(Function) << "start " << name << " interrupted";
    else
        Log::error(Function) << "started process failed, " << call;
    return started;
}

bool ProcessManager::killProcess(const QString& name, const std::stop_token& stop)
{
    constexpr auto Function = "ProcessManager::killProcess";
    const auto outcome = platform::killByImageName(
        name, isMainThread() ? MainThreadPatience : CommandPatience, stop);
    const bool succeeded = outcome.finished && outcome.exitCode == 0;
    if (!succeeded && stop.stop_requested()) {
        // The end of the session ends the tool too, with an exit code of its own.
        Log::info(Function) << "kill " << name << " interrupted";
        return false;
    }
    if (!outcome.finished) {
        Log::error(Function) << "kill " << name << " Failed to execute taskkill command!";
        return false;
    }
    if (outcome.exitCode != 0) {
        Log::error(Function) << name << " killed failed:" << outcome.errorText;
        return false;
    }
    Log::error(Function) << name << " killed success";
    return true;
}

void ProcessManager::keepProcessAlive(const QString& name, const std::stop_token& stop)
{
    const auto outcome = platform::isImageRunning(name, CommandPatience, stop);
    if (stop.stop_requested())
        return; // the state does not matter any more, and nothing is started at the end
    if (!outcome.finished) {
        // The text names the updater, whatever `name` is.
        Log::error("ProcessManager::keepProcessAlive")
            << R"(error!!! process.start("tasklist", QStringList() << "/FI" << )"
               R"("IMAGENAME eq PatchPilot.exe");)";
        return;
    }
    if (!outcome.running)
        startProcess(name, {QString(), QString()}, stop);
}

bool ProcessManager::readPathFromRegist(const QString& key, const QString& valueName, QString& path)
{
    constexpr auto Function = "ProcessManager::readPathFromRegist";
    const QString value = platform::readRegistry(key, valueName).toString();
    Log::info(Function) << "REG:" << key << "\\" << valueName << ", value:" << value;
    if (value.isEmpty()) {
        Log::error(Function) << "value not exist!";
        return false;
    }

    static const QRegularExpression s_executable(uR"(^"?([a-zA-Z]:[^"]*?\.exe))"_s,
                                                 QRegularExpression::CaseInsensitiveOption);
    const auto match = s_executable.match(value);
    path = match.hasMatch() ? match.captured(1) : value;
    if (isExistingPath(path))
        return true;
    Log::error(Function) << "path:" << path << " not exist!";
    return false;
}

bool ProcessManager::findTeamsPath(const QString& folder, const QString& fileName, QString& path)
{
    constexpr auto Function = "ProcessManager::findTeamsPath";
    const QDir directory(folder);
    if (!directory.exists()) {
        Log::error(Function) << "dir:" << directory.absolutePath() << " not exist!";
        return false;
    }
    const QFileInfo file(directory, fileName);
    if (file.exists()) {
        path = file.absoluteFilePath();
        return true;
    }
    Log::error(Function) << "path:" << directory.absolutePath() << "/" << fileName << " not exist!";
    return false;
}

bool ProcessManager::findZoomShortcut(QString& shortcut)
{
    constexpr auto Function = "ProcessManager::findZoomShortcut";
    Log::info(Function) << "findZoomShortcut";
    const QString fileName = platform::shortcutFileName(ZoomShortcutTitle);

    const QString folder = platform::startMenuFolder() + "/Zoom"_L1;
    if (!QFileInfo(folder).isDir()) {
        Log::error(Function) << "zoomAppDir:" << folder << " not exist!";
    } else if (const QFileInfo file(QDir(folder), fileName); file.exists()) {
        shortcut = file.absoluteFilePath();
        return true;
    } else {
        Log::error(Function) << "shortcut:" << folder << "/" << fileName << " not exist!";
    }

    const QString desktop = platform::desktopFolder();
    if (const QFileInfo file(QDir(desktop), fileName); file.exists()) {
        shortcut = file.absoluteFilePath();
        return true;
    }
    Log::error(Function) << "desktopShortcut:" << desktop << "/" << fileName << " not exist!";

    shortcut = platform::packagedShortcut({ZoomShortcutTitle, ZoomPackageTitle});
    return !shortcut.isEmpty();
}

bool ProcessManager::getShortcutTarget(const QString& shortcut, QString& target)
{
    constexpr auto Function = "ProcessManager::getShortcutTarget";
    const auto result = platform::shortcutTarget(shortcut, ShortcutPatience);
    const bool succeeded = result.finished && result.exitCode == 0;
    if (!succeeded && platform::mustEnd())
        return false; // nothing failed, the program ends
    if (!result.finished) {
        Log::error(Function) << "Process failed or timeout:" << result.processError;
        return false;
    }
    if (result.exitCode != 0) {
        Log::error(Function) << "Script failed with code:" << result.exitCode;
        Log::error(Function) << "Error output:" << result.errorOutput;
        return false;
    }
    const QString output = result.output.trimmed();
    if (!isExistingPath(output)) {
        Log::error(Function) << "output:" << output << " not exist!";
        return false;
    }
    target = output;
    return true;
}

bool ProcessManager::findZoomPath(QString& path)
{
    constexpr auto Function = "ProcessManager::findZoomPath";
    Log::info(Function) << "findZoomPath";
    QString shortcut;
    if (!findZoomShortcut(shortcut))
        return false;
    Log::info(Function) << "zoomShortcut:" << shortcut;
    return getShortcutTarget(shortcut, path);
}

bool ProcessManager::startZoom()
{
    QString path;
    if (readPathFromRegist(ZoomUninstallKey, u"DisplayIcon"_s, path) && startProcess(path))
        return true;
    path.clear();
    return findZoomPath(path) && startProcess(path);
}

bool ProcessManager::startTeams()
{
    for (const auto key : {TeamsAppPathKey, TeamsUrlHandlerKey}) {
        QString path;
        if (readPathFromRegist(key, QString::fromUtf16(platform::DefaultValueName), path) &&
            startProcess(path))
            return true;
    }
    return startTeamsIn(u"/Microsoft/WindowsApps"_s, u"ms-teams.exe"_s) ||
           startTeamsIn(u"/Microsoft/Teams/current"_s, u"Teams.exe"_s) ||
           startTeamsIn(u"/Microsoft/Teams/previous"_s, u"Teams.exe"_s);
}

bool ProcessManager::startTeamsIn(const QString& folder, const QString& fileName)
{
    QString path;
    return findTeamsPath(platform::localDataFolder() + folder,
                         platform::executableFileName(fileName), path) &&
           startProcess(path);
}

bool ProcessManager::openGoogleMeeting()
{
    return !platform::openInBrowser(QUrl(m_googleMeetingUrl));
}
