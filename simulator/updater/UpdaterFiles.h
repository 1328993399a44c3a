#pragma once

#include <QString>

#include <chrono>

namespace simulator
{

/// Settings of the simulated updater.
struct UpdaterSettings {
    enum class Behaviour { Well, Never, Dies, Late, Unkillable };

    Behaviour behaviour = Behaviour::Well;
    QString installed; ///< recorded as the installed version if there is none
    QString offer;     ///< the newer version; empty if there is none
    std::chrono::milliseconds duration = std::chrono::seconds(3); ///< of an upgrade
};

/// Folder of the settings, the log and, on Linux, the registry.
[[nodiscard]] QString updaterFolder();

/// Reads the settings file at each call. A missing or invalid value gives the default. Each invalid
/// value is logged once.
[[nodiscard]] UpdaterSettings readSettings();

/// Appends one line to the log.
void logUpdater(const QString& text);

/// The registry values "version" (installed) and "newver" (found).
[[nodiscard]] QString recordedVersion(const QString& name);
/// Logs the failure and returns false if the registry cannot be written.
bool recordVersion(const QString& name, const QString& version);

/// Records the version that was found as the installed one. False if there is none.
bool install();

} // namespace simulator
