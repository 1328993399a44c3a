#include "platform/Folders.h"

#include "platform/UserSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

// QStandardPaths has no state folder before Qt 6.7.
QString stateFolder()
{
    const QString configured = qEnvironmentVariable("XDG_STATE_HOME");
    if (QDir::isAbsolutePath(configured))
        return QDir::cleanPath(configured);
    return QDir::homePath() + "/.local/state"_L1;
}

bool canWrite(const QString& folder)
{
    // access() also detects a read-only mount, which the permission bits do not show.
    return ::access(QFile::encodeName(folder).constData(), W_OK | X_OK) == 0;
}

} // namespace

namespace platform
{

QString programDataFolder()
{
    QString folder = stateFolder() + "/VORNApp"_L1;
    QDir().mkpath(folder);
    return folder;
}

QString logBackupFolder()
{
    return stateFolder() + "/vorn_temp/log/"_L1;
}

QString settingsFolder()
{
    QString besideExecutable = QCoreApplication::applicationDirPath();
    return canWrite(besideExecutable) ? besideExecutable : userSettingsFolder(besideExecutable);
}

QString startMenuFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation);
}

QString desktopFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
}

QString localDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString executableFileName(const QString& name)
{
    return name.endsWith(".exe"_L1, Qt::CaseInsensitive) ? name.chopped(4) : name;
}

QString programBesideApplication(const QString& name)
{
    const QString bareName = executableFileName(name);
    const QString path = QDir(QCoreApplication::applicationDirPath()).filePath(bareName);
    return QFileInfo(path).isFile() ? path : bareName;
}

} // namespace platform
