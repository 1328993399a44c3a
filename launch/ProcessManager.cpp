#include "launch/ProcessManager.h"

#include "logging/Log.h"
#include "platform/Folders.h"
#include "platform/Processes.h"
#include "platform/Registry.h"
#include "platform/Shortcuts.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QThread>
#include <QUrl>

#include <future>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::chrono::seconds kCommandPatience{30};
// The main thread ends a companion program on its way out, when nobody should have to wait.
constexpr std::chrono::milliseconds kMainThreadPatience{1'500};
constexpr std::chrono::seconds kShortcutPatience{3};
// Short, because the main thread may be waiting for this one to end.
constexpr std::chrono::seconds kOpenPatience{1};

constexpr char16_t kZoomUninstallKey[] =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\ZoomUMX";
constexpr char16_t kTeamsAppPathKey[] =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\ms-teams.exe";
constexpr char16_t kTeamsUrlHandlerKey[] =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Classes\\TeamsURL\\shell\\open\\command";

const QString kZoomShortcutTitle = u"Zoom Workplace"_s;
const QString kZoomPackageTitle = u"Zoom"_s; // the entry of Zoom's own Linux packages

bool isExistingPath(const QString& path)
{
    return !path.isEmpty() && QFileInfo::exists(path);
}

bool isMainThread()
{
    const QCoreApplication* const application = QCoreApplication::instance();
    return application && QThread::currentThread() == application->thread();
}

// The desktop's services may be asked on the main thread only. Whoever ends the program waits there
// for this thread, so the answer is awaited for a bounded time and then given up.
bool openInBrowser(const QUrl& address)
{
    QCoreApplication* const application = QCoreApplication::instance();
    if (!application)
        return false;
    if (isMainThread())
        return QDesktopServices::openUrl(address);

    const auto promise = std::make_shared<std::promise<bool>>();
    auto opened = promise->get_future();
    QMetaObject::invokeMethod(
        application, [address, promise] { promise->set_value(QDesktopServices::openUrl(address)); },
        Qt::QueuedConnection);
    return opened.wait_for(kOpenPatience) == std::future_status::ready && opened.get();
}

} // namespace

bool ProcessManager::startProcess(const QString& path)
{
    constexpr auto kFunction = "ProcessManager::startProcess";
    Log::info(kFunction) << "path:" << path;
    if (!QProcess::startDetached(path, {})) {
        Log::error(kFunction) << "started process failed:";
        return false;
    }
    Log::info(kFunction) << "started process success";
    return true;
}

bool ProcessManager::startProcess(const QString& name, const QStringList& arguments)
{
    constexpr auto kFunction = "ProcessManager::startProcess";
    const bool started =
        QProcess::startDetached(platform::programBesideApplication(name), arguments);
    const QString what = name + u' ' + arguments.value(0) + u' ' + arguments.value(1);
    if (started)
        Log::info(kFunction) << "started process success, " << what;
    else
        Log::error(kFunction) << "started process failed, " << what;
    return started;
}

bool ProcessManager::killProcess(const QString& name, const std::stop_token& stop)
{
    constexpr auto kFunction = "ProcessManager::killProcess";
    const auto outcome = platform::killByImageName(
        name, isMainThread() ? kMainThreadPatience : kCommandPatience, stop);
    if (!outcome.finished) {
        Log::error(kFunction) << "kill " << name << " Failed to execute taskkill command!";
        return false;
    }
    if (outcome.exitCode != 0) {
        Log::error(kFunction) << name << " killed failed:" << outcome.errorText;
        return false;
    }
    Log::error(kFunction) << name << " killed success";
    return true;
}

void ProcessManager::keepProcessAlive(const QString& name, const std::stop_token& stop)
{
    const auto outcome = platform::isImageRunning(name, kCommandPatience, stop);
    if (!outcome.finished) {
        // The text is fixed, whatever program was asked for.
        Log::error("ProcessManager::keepProcessAlive")
            << R"(error!!! process.start("tasklist", QStringList() << "/FI" << )"
               R"("IMAGENAME eq PatchPilot.exe");)";
        return;
    }
    if (!outcome.running)
        startProcess(name, {QString(), QString()});
}

bool ProcessManager::readPathFromRegist(const QString& key, const QString& valueName, QString& path)
{
    constexpr auto kFunction = "ProcessManager::readPathFromRegist";
    const QString value = platform::readRegistry(key, valueName).toString();
    Log::info(kFunction) << "REG:" << key << "\\" << valueName << ", value:" << value;
    if (value.isEmpty()) {
        Log::error(kFunction) << "value not exist!";
        return false;
    }

    static const QRegularExpression s_executable(uR"(^"?([a-zA-Z]:[^"]*?\.exe))"_s,
                                                 QRegularExpression::CaseInsensitiveOption);
    const auto match = s_executable.match(value);
    path = match.hasMatch() ? match.captured(1) : value;
    if (isExistingPath(path))
        return true;
    Log::error(kFunction) << "path:" << path << " not exist!";
    return false;
}

bool ProcessManager::findTeamsPath(const QString& folder, const QString& fileName, QString& path)
{
    constexpr auto kFunction = "ProcessManager::findTeamsPath";
    const QDir directory(folder);
    if (!directory.exists()) {
        Log::error(kFunction) << "dir:" << directory.absolutePath() << " not exist!";
        return false;
    }
    const QFileInfo file(directory, fileName);
    if (file.exists()) {
        path = file.absoluteFilePath();
        return true;
    }
    Log::error(kFunction) << "path:" << directory.absolutePath() << "/" << fileName
                          << " not exist!";
    return false;
}

bool ProcessManager::findZoomShortcut(QString& shortcut)
{
    constexpr auto kFunction = "ProcessManager::findZoomShortcut";
    Log::info(kFunction) << "findZoomShortcut";
    const QString fileName = platform::shortcutFileName(kZoomShortcutTitle);

    const QString folder = platform::startMenuFolder() + "/Zoom"_L1;
    if (!QFileInfo(folder).isDir()) {
        Log::error(kFunction) << "zoomAppDir:" << folder << " not exist!";
    } else if (const QFileInfo file(QDir(folder), fileName); file.exists()) {
        shortcut = file.absoluteFilePath();
        return true;
    } else {
        Log::error(kFunction) << "shortcut:" << folder << "/" << fileName << " not exist!";
    }

    const QString desktop = platform::desktopFolder();
    if (const QFileInfo file(QDir(desktop), fileName); file.exists()) {
        shortcut = file.absoluteFilePath();
        return true;
    }
    Log::error(kFunction) << "desktopShortcut:" << desktop << "/" << fileName << " not exist!";

    shortcut = platform::packagedShortcut({kZoomShortcutTitle, kZoomPackageTitle});
    return !shortcut.isEmpty();
}

bool ProcessManager::getShortcutTarget(const QString& shortcut, QString& target)
{
    constexpr auto kFunction = "ProcessManager::getShortcutTarget";
    const auto result = platform::shortcutTarget(shortcut, kShortcutPatience);
    if (!result.finished) {
        Log::error(kFunction) << "Process failed or timeout:" << result.processError;
        return false;
    }
    if (result.exitCode != 0) {
        Log::error(kFunction) << "Script failed with code:" << result.exitCode;
        Log::error(kFunction) << "Error output:" << result.errorOutput;
        return false;
    }
    const QString output = result.output.trimmed();
    if (!isExistingPath(output)) {
        Log::error(kFunction) << "output:" << output << " not exist!";
        return false;
    }
    target = output;
    return true;
}

bool ProcessManager::findZoomPath(QString& path)
{
    constexpr auto kFunction = "ProcessManager::findZoomPath";
    Log::info(kFunction) << "findZoomPath";
    QString shortcut;
    if (!findZoomShortcut(shortcut))
        return false;
    Log::info(kFunction) << "zoomShortcut:" << shortcut;
    return getShortcutTarget(shortcut, path);
}

bool ProcessManager::startZoom()
{
    QString path;
    if (readPathFromRegist(QString::fromUtf16(kZoomUninstallKey), u"DisplayIcon"_s, path) &&
        startProcess(path))
        return true;
    path.clear();
    return findZoomPath(path) && startProcess(path);
}

bool ProcessManager::startTeams()
{
    for (const auto* key : {kTeamsAppPathKey, kTeamsUrlHandlerKey}) {
        QString path;
        if (readPathFromRegist(QString::fromUtf16(key),
                               QString::fromUtf16(platform::DefaultValueName), path) &&
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

bool ProcessManager::openGoogleMeeting(const QString& address)
{
    return !openInBrowser(QUrl(address));
}
