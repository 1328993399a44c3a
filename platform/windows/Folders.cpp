#include "platform/Folders.h"

#include "platform/UserSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace
{

// Makes a file, which the system removes at once, because only an attempt shows whether the access
// rights and the medium allow it.
bool canWrite(const QString& folder)
{
    const QString path = u"%1/.vornapp-%2"_s.arg(folder).arg(GetCurrentProcessId());
    const HANDLE file = CreateFileW(
        QDir::toNativeSeparators(path).toStdWString().c_str(), GENERIC_WRITE, 0, nullptr,
        CREATE_NEW, FILE_ATTRIBUTE_TEMPORARY | FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE,
        nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    CloseHandle(file);
    return true;
}

} // namespace

namespace platform
{

QString programDataFolder()
{
    QString folder = u"C:\\ProgramData\\VORNApp"_s;
    QDir().mkpath(folder);
    return folder;
}

QString logBackupFolder()
{
    return u"C:\\ProgramData\\vorn_temp\\log\\"_s;
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
    return name;
}

QString programBesideApplication(const QString& name)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(name);
}

} // namespace platform
