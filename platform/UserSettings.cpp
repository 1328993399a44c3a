#include "platform/UserSettings.h"

#include "platform/Folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace
{

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

QString userSettingsFolder(const QString& installed)
{
    QString folder = localDataFolder() + "/VORNApp"_L1;
    QDir().mkpath(folder);
    for (const auto name : {"/config.ini"_L1, "/config.json"_L1})
        copyOnce(installed + name, folder + name);
    // Where nothing can be written, the installed configuration can still be read.
    const auto config = "/config.ini"_L1;
    return QFileInfo::exists(installed + config) && !QFileInfo::exists(folder + config) ? installed
                                                                                        : folder;
}

} // namespace platform
