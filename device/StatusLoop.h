#pragma once

#include "device/LoggedValue.h"
#include "launch/UpgradeControl.h"
#include "threads/Worker.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>

class DisplayState;
class LocalDevices;
class MessageChannel;

/// The once-a-second loop on the status worker: keeps the updater running, reads the versions,
/// looks for the display's devices on this PC and asks the display for its firmware version. The
/// upgrade itself is started here as well.
class StatusLoop : public QObject
{
    Q_OBJECT

public:
    /// References have to outlive the loop.
    struct Services {
        ProgramControl& programs;
        /// Reads the registry value of this name; empty when there is none. Status worker and main
        /// thread.
        std::function<QString(const QString& name)> registryValue;
        std::unique_ptr<LocalDevices> localDevices;
        /// File path of this program, passed to the updater.
        QString executablePath;
        MessageChannel& channel;
        DisplayState& display;
    };
    struct Timing {
        std::chrono::milliseconds statusPass = std::chrono::seconds(1);
        std::chrono::milliseconds pauseAfterUpdaterKill = std::chrono::seconds(3);
    };

    StatusLoop(Services services, Timing timing);
    ~StatusLoop() override;

    /// Reads the rules of the device check. Before start().
    void readDeviceRules(const QString& path);
    /// Starts the worker.
    void start();
    /// Asks the worker to end, without waiting for it. Any thread.
    void requestStop();
    /// Ends the worker and the upgrade thread. Any thread but those two.
    void end();

    // Any thread.
    QString readRegistry(const QString& name) const { return m_services.registryValue(name); }
    QString version() const { return m_version.get(); }
    QString newVersion() const { return m_newVersion.get(); }
    void setVersion(const QString& newVersion);
    void setNewVersion(const QString& newVersion);

    /// Reads both versions and reports them. True when the registry names a version other than the
    /// installed one. Any thread.
    bool checkUpdate();
    void startUpdate();
    void updateTimeout() { m_upgrade.timeOut(); }

signals:
    // Emitted on the thread of the change, which is the status worker for those of a pass.
    void versionChanged();
    void newVersionChanged();
    void hasNewVersion(bool checked);
    void updateCompleted();

private:
    void run(const std::stop_token& stop);
    void loadVersion();
    void loadNewVersion();
    bool reportVersions(const char* function);
    void queryFirmwareVersion();

    const Services m_services;
    const Timing m_timing;

    // Each guarded by its own mutex.
    LoggedValue<QString> m_version;
    LoggedValue<QString> m_newVersion;

    // Status worker only.
    int m_versionQueryTick = 0;

    UpgradeControl m_upgrade;         // any thread
    std::unique_ptr<Worker> m_worker; // last, since the worker uses the others
};
