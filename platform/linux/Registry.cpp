#include "platform/Registry.h"

#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace
{

QString registryFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           "/VORNApp/registry.ini"_L1;
}

QString iniKey(QString keyPath, const QString& name)
{
    return keyPath.replace(u'\\', u'/') + u'/' + name;
}

} // namespace

namespace platform
{

QVariant readRegistry(const QString& keyPath, const QString& name)
{
    // A fresh object looks whether the file has changed since any other one read it.
    QVariant value = QSettings(registryFile(), QSettings::IniFormat).value(iniKey(keyPath, name));

    // A file written by hand may hold an unquoted comma, as in an icon reference.
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(u',');
    return value;
}

bool writeRegistry(const QString& keyPath, const QString& name, const QVariant& value)
{
    // sync() merges with what other processes wrote, under a lock file.
    QSettings registry(registryFile(), QSettings::IniFormat);
    registry.setValue(iniKey(keyPath, name), value);
    registry.sync();
    return registry.status() != QSettings::AccessError; // lines that cannot be read do not matter
}

} // namespace platform
