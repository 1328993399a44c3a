#pragma once

#include <QLockFile>
#include <QObject>

namespace simulator
{

/// Plays a program that keeps running when the updater is ended: an installer that completes the
/// upgrade, or a guard that restarts the updater. Ends the program with its exit code. Main thread
/// only.
class Installer : public QObject
{
    Q_OBJECT

public:
    Installer();

    void installLate();
    /// Restarts the updater as long as the settings say so. False if another guard is running.
    [[nodiscard]] bool guard();

private:
    QLockFile m_lock;
};

} // namespace simulator
