#include "platform/Registry.h"

#include <QSettings>

namespace platform
{

QVariant readRegistry(const QString& keyPath, const QString& name)
{
    return QSettings(keyPath, QSettings::NativeFormat).value(name);
}

bool writeRegistry(const QString& keyPath, const QString& name, const QVariant& value)
{
    QSettings registry(keyPath, QSettings::NativeFormat);
    registry.setValue(name, value);
    registry.sync();
    return registry.status() == QSettings::NoError;
}

} // namespace platform
