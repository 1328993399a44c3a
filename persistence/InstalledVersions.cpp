#include "persistence/InstalledVersions.h"

#include "persistence/Keys.h"
#include "platform/Registry.h"

QString installedVersionValue(const QString& name)
{
    return platform::readRegistry(keys::registry::Path, name).toString();
}
