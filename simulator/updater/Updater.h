#pragma once

#include "simulator/updater/UpdaterFiles.h"

#include <QLockFile>
#include <QObject>

namespace simulator
{

/// Plays the updater. In the background it records the versions; in an upgrade it installs the
/// version that it found, as the current settings say. Ends the program with its exit code. Main
/// thread only.
class Updater : public QObject
{
    Q_OBJECT

public:
    Updater();

    /// Both return at once. False if another updater is running.
    [[nodiscard]] bool runInBackground();
    /// @param application  file path of the program to upgrade
    [[nodiscard]] bool upgrade(const QString& application);

private:
    [[nodiscard]] bool begin(const QString& what);
    void checkOffer();
    void endUpgrade();

    QLockFile m_lock;
    QString m_offered; // the offer that was recorded last
};

} // namespace simulator
