#include "simulator/updater/UpdaterFiles.h"

#include "platform/Registry.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include <map>

using namespace Qt::StringLiterals;

namespace simulator
{

namespace
{

const QString kRegistryKey = u"HKEY_CURRENT_USER\\System\\CurrentControlSet\\Control\\VORNApp"_s;

UpdaterOrders::Behaviour behaviourNamed(const QString& name)
{
    using enum UpdaterOrders::Behaviour;
    static const std::map<QString, UpdaterOrders::Behaviour> s_names{
        {u"never"_s, Never}, {u"dies"_s, Dies}, {u"late"_s, Late}, {u"unkillable"_s, Unkillable}};
    const auto found = s_names.find(name);
    return found == s_names.end() ? Well : found->second;
}

} // namespace

QString updaterFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/VORNApp"_L1;
}

UpdaterOrders readOrders()
{
    const QSettings file(updaterFolder() + "/patchpilot.ini"_L1, QSettings::IniFormat);
    UpdaterOrders orders;
    orders.behaviour = behaviourNamed(file.value("behaviour"_L1).toString());
    orders.installed =
        file.value("installed"_L1, QString::fromLatin1(VORN_INSTALLED_VERSION)).toString();
    orders.offer = file.value("offer"_L1).toString();
    bool isNumber = false;
    const double seconds = file.value("seconds"_L1).toDouble(&isNumber);
    if (isNumber && seconds >= 0 && seconds <= 3600)
        orders.duration = std::chrono::milliseconds(qRound(seconds * 1000));
    return orders;
}

void logUpdater(const QString& text)
{
    QFile file(updaterFolder() + "/patchpilot.log"_L1);
    if (file.open(QIODevice::Append | QIODevice::Text))
        file.write(text.toUtf8() + '\n');
}

QString recordedVersion(const QString& name)
{
    return platform::readRegistry(kRegistryKey, name).toString();
}

bool recordVersion(const QString& name, const QString& version)
{
    if (platform::writeRegistry(kRegistryKey, name, version))
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
