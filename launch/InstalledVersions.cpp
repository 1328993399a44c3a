#include "launch/InstalledVersions.h"

#include "platform/Registry.h"

using namespace Qt::StringLiterals;

QString installedVersionValue(const QString& name)
{
    return platform::readRegistry(
               u"HKEY_CURRENT_USER\\System\\CurrentControlSet\\Control\\VORNApp"_s, name)
        .toString();
}
