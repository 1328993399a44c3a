#include "platform/Folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

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
    return QCoreApplication::applicationDirPath();
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
