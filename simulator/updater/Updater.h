#pragma once

#include "simulator/updater/UpdaterFiles.h"

#include <QLockFile>
#include <QObject>

namespace simulator
{

/// Plays the updater: in the background it records the versions, in an upgrade it installs the one
/// it found, as the orders of the moment say. Main thread; ends the program with its exit code.
class Updater : public QObject
{
    Q_OBJECT

public:
    Updater();

    /// Both return at once. False: another updater is running.
    [[nodiscard]] bool runInBackground();
    /// @param application  file path of the program to upgrade
    [[nodiscard]] bool upgrade(const QString& application);

private:
    [[nodiscard]] bool begin(const QString& what);
    void lookAround();
    void endUpgrade();

    QLockFile m_lock;
    QString m_offered; // by the orders, as far as they were followed
};

} // namespace simulator
