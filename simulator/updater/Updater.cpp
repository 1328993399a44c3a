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

// A program of another name, which is not ended when the updater is.
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
    m_lock.setStaleLockTime(0ms); // only the end of its holder frees it
    liveInFolder(updaterFolder(), this);
}

bool Updater::runInBackground()
{
    if (!begin(u"background"_s))
        return false;
    if (readOrders().behaviour == UpdaterOrders::Behaviour::Unkillable)
        startInstaller(u"guard"_s);
    const QString installed = readOrders().installed;
    if (recordedVersion(u"version"_s).isEmpty() && recordVersion(u"version"_s, installed))
        logUpdater(u"recorded "_s + installed);
    auto* const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &Updater::lookAround);
    timer->start(100ms);
    lookAround();
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
    const UpdaterOrders orders = readOrders();
    using enum UpdaterOrders::Behaviour;
    switch (orders.behaviour) {
    case Well:
    case Dies:
        QTimer::singleShot(orders.duration, this, &Updater::endUpgrade);
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

// Writes only what the orders newly ask for: a folder that is just being removed must not come
// back.
void Updater::lookAround()
{
    const QString offer = readOrders().offer;
    if (offer.isEmpty() || offer == m_offered)
        return;
    m_offered = offer;
    if (recordedVersion(u"newver"_s) != offer && recordVersion(u"newver"_s, offer))
        logUpdater(u"found "_s + offer);
}

void Updater::endUpgrade()
{
    if (readOrders().behaviour == UpdaterOrders::Behaviour::Dies) {
        logUpdater(u"died"_s);
        QCoreApplication::exit(1);
        return;
    }
    QCoreApplication::exit(install() ? 0 : 1);
}

} // namespace simulator
