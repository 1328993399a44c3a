#pragma once

#include <QString>

#include <chrono>

namespace simulator
{

/// How the updater is to behave.
struct UpdaterOrders {
    enum class Behaviour { Well, Never, Dies, Late, Unkillable };

    Behaviour behaviour = Behaviour::Well;
    QString installed; ///< recorded as the installed version where there is none yet
    QString offer;     ///< the newer version that is found; empty: none
    std::chrono::milliseconds duration = std::chrono::seconds(3); ///< of an upgrade
};

/// The folder that the orders, the log and, on Linux, the registry lie in.
[[nodiscard]] QString updaterFolder();

/// Read afresh at each call. A file that is missing or holds nonsense gives the defaults, and
/// each piece of nonsense a line in the log.
[[nodiscard]] UpdaterOrders readOrders();

/// Appends one line to the log.
void logUpdater(const QString& text);

/// The registry values "version" (installed) and "newver" (found).
[[nodiscard]] QString recordedVersion(const QString& name);
/// False, with a line in the log, when the registry cannot be written.
bool recordVersion(const QString& name, const QString& version);

/// Makes the version that was found the installed one; false when none was.
bool install();

} // namespace simulator
