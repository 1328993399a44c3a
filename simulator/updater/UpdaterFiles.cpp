#include "simulator/updater/UpdaterFiles.h"

#include "platform/Registry.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include <map>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace simulator
{

namespace
{

const QString RegistryKey = u"HKEY_CURRENT_USER\\System\\CurrentControlSet\\Control\\VORNApp"_s;

const std::map<QString, UpdaterSettings::Behaviour>& behaviours()
{
    using enum UpdaterSettings::Behaviour;
    static const std::map<QString, UpdaterSettings::Behaviour> s_behaviours{
        {u"well"_s, Well},
        {u"never"_s, Never},
        {u"dies"_s, Dies},
        {u"late"_s, Late},
        {u"unkillable"_s, Unkillable}};
    return s_behaviours;
}

std::optional<std::chrono::milliseconds> durationOf(const QString& seconds)
{
    bool isNumber = false;
    const double value = seconds.toDouble(&isNumber);
    if (!isNumber || value < 0 || value > 3600)
        return {};
    return std::chrono::milliseconds(qRound(value * 1000));
}

bool isValid(const QString& key, const QString& value)
{
    if (key == "behaviour"_L1)
        return behaviours().contains(value);
    if (key == "seconds"_L1)
        return durationOf(value).has_value();
    return key == "installed"_L1 || key == "offer"_L1;
}

// The settings are read several times a second, so an invalid value is logged only when it is new.
void logInvalidValues(const QSettings& settings)
{
    static QStringList s_logged;
    QStringList invalid;
    for (const QString& key : settings.allKeys()) {
        const QString value = settings.value(key).toString();
        if (!isValid(key, value))
            invalid.append(u"not understood: %1=%2"_s.arg(key, value));
    }
    for (const QString& line : std::as_const(invalid)) {
        if (!s_logged.contains(line))
            simulator::logUpdater(line);
    }
    s_logged = invalid;
}

} // namespace

QString updaterFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/VORNApp"_L1;
}

UpdaterSettings readSettings()
{
    const QSettings file(updaterFolder() + "/patchpilot.ini"_L1, QSettings::IniFormat);
    logInvalidValues(file);
    UpdaterSettings settings;
    const auto behaviour = behaviours().find(file.value("behaviour"_L1).toString());
    if (behaviour != behaviours().end())
        settings.behaviour = behaviour->second;
    settings.installed =
        file.value("installed"_L1, QString::fromLatin1(VORN_INSTALLED_VERSION)).toString();
    settings.offer = file.value("offer"_L1).toString();
    settings.duration = durationOf(file.value("seconds"_L1).toString()).value_or(settings.duration);
    return settings;
}

void logUpdater(const QString& text)
{
    QFile file(updaterFolder() + "/patchpilot.log"_L1);
    if (file.open(QIODevice::Append | QIODevice::Text))
        file.write(text.toUtf8() + '\n');
}

QString recordedVersion(const QString& name)
{
    return platform::readRegistry(RegistryKey, name).toString();
}

bool recordVersion(const QString& name, const QString& version)
{
    if (platform::writeRegistry(RegistryKey, name, version))
        return true;
    logUpdater(u"cannot write the registry"_s);
    return false;
}

bool install()
{
    const QString version = recordedVersion(u"newver"_s);
    if (version.isEmpty()) {
        logUpdater(u"nothing to install"_s);
        return false;
    }
    if (!recordVersion(u"version"_s, version))
        return false;
    logUpdater(u"installed "_s + version);
    return true;
}

} // namespace simulator
