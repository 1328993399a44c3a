#include "launch/InstalledVersions.h"

#include "platform/Registry.h"

using namespace Qt::StringLiterals;

namespace InstalledVersions
{

QString read(const QString& name)
{
    return platform::readRegistry(
               u"HKEY_CURRENT_USER\\System\\CurrentControlSet\\Control\\VORNApp"_s, name)
        .toString();
}

} // namespace InstalledVersions
