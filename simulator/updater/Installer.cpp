#include "simulator/updater/Installer.h"

#include "platform/Folders.h"
#include "platform/Processes.h"
#include "simulator/updater/HomeFolder.h"
#include "simulator/updater/UpdaterFiles.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace simulator
{

namespace
{

void keepUpdaterRunning()
{
    if (readSettings().behaviour != UpdaterSettings::Behaviour::Unkillable) {
        QCoreApplication::exit(0);
        return;
    }
    const QString updater = u"PatchPilot.exe"_s;
    const auto outcome = platform::isImageRunning(updater, 5s);
    if (!outcome.finished || outcome.running)
        return;
    logUpdater(u"started again"_s);
    QProcess::startDetached(platform::programBesideApplication(updater), {QString(), QString()});
}

} // namespace

Installer::Installer()
    : m_lock(updaterFolder() + "/guard.lock"_L1)
{
    m_lock.setStaleLockTime(0ms);
    quitWithFolder(updaterFolder(), this);
}

void Installer::installLate()
{
    logUpdater(u"installing"_s);
    QTimer::singleShot(readSettings().duration, this,
                       [] { QCoreApplication::exit(install() ? 0 : 1); });
}

bool Installer::guard()
{
    if (!m_lock.tryLock(0))
        return false;
    auto* const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &keepUpdaterRunning);
    timer->start(100ms);
    return true;
}

} // namespace simulator
