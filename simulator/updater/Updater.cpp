#include "simulator/updater/Updater.h"

#include "platform/Folders.h"
#include "simulator/updater/HomeFolder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace simulator
{

namespace
{

// The installer has another name, so killing the updater by name does not end it.
void startInstaller(const QString& job)
{
    if (!QProcess::startDetached(platform::programBesideApplication(u"UpdateInstaller.exe"_s),
                                 {job}))
        logUpdater(u"cannot start the installer"_s);
}

} // namespace

Updater::Updater()
    : m_lock(updaterFolder() + "/patchpilot.lock"_L1)
{
    m_lock.setStaleLockTime(0ms); // the lock does not expire
    quitWithFolder(updaterFolder(), this);
}

bool Updater::runInBackground()
{
    if (!begin(u"background"_s))
        return false;
    if (readSettings().behaviour == UpdaterSettings::Behaviour::Unkillable)
        startInstaller(u"guard"_s);
    const QString installed = readSettings().installed;
    if (recordedVersion(u"version"_s).isEmpty() && recordVersion(u"version"_s, installed))
        logUpdater(u"recorded "_s + installed);
    auto* const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &Updater::checkOffer);
    timer->start(100ms);
    checkOffer();
    return true;
}

bool Updater::upgrade(const QString& application)
{
    if (!begin(u"update "_s + application))
        return false;
    if (!QFileInfo(application).isFile()) {
        logUpdater(u"there is no such application"_s);
        QTimer::singleShot(0, this, [] { QCoreApplication::exit(1); });
        return true;
    }
    const UpdaterSettings settings = readSettings();
    using enum UpdaterSettings::Behaviour;
    switch (settings.behaviour) {
    case Well:
    case Dies:
        QTimer::singleShot(settings.duration, this, &Updater::endUpgrade);
        break;
    case Late:
        startInstaller(u"install"_s);
        break;
    case Unkillable:
        startInstaller(u"guard"_s);
        break;
    case Never:
        break;
    }
    return true;
}

bool Updater::begin(const QString& what)
{
    if (!m_lock.tryLock(0)) {
        logUpdater(what + ": another updater is running"_L1);
        return false;
    }
    logUpdater(what);
    return true;
}

// Writes only a new offer: a repeated write would create the folder again while it is being
// removed.
void Updater::checkOffer()
{
    const QString offer = readSettings().offer;
    if (offer.isEmpty() || offer == m_offered)
        return;
    m_offered = offer;
    if (recordedVersion(u"newver"_s) != offer && recordVersion(u"newver"_s, offer))
        logUpdater(u"found "_s + offer);
}

void Updater::endUpgrade()
{
    if (readSettings().behaviour == UpdaterSettings::Behaviour::Dies) {
        logUpdater(u"died"_s);
        QCoreApplication::exit(1);
        return;
    }
    QCoreApplication::exit(install() ? 0 : 1);
}

} // namespace simulator
