#include "platform/Folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
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

/// Leaves no target that is incomplete, since it would never be copied again.
void copyOnce(const QString& source, const QString& target)
{
    QFile original(source);
    if (QFileInfo::exists(target) || !QFileInfo(source).isFile() ||
        !original.open(QIODevice::ReadOnly))
        return;
    QSaveFile copy(target);
    if (!copy.open(QIODevice::WriteOnly))
        return;
    // The installed file is usually read-only.
    copy.setPermissions(original.permissions() | QFile::ReadOwner | QFile::WriteOwner);
    copy.write(original.readAll());
    copy.commit();
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
    if (canWrite(besideExecutable))
        return besideExecutable;

    QString folder = localDataFolder() + "/VORNApp"_L1;
    QDir().mkpath(folder);
    for (const auto name : {"/config.ini"_L1, "/config.json"_L1})
        copyOnce(besideExecutable + name, folder + name);
    return folder;
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
