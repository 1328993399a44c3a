#pragma once

#include <QLockFile>
#include <QObject>

namespace simulator
{

/// Plays what an updater may leave behind when it is ended: an installer that finishes all the
/// same, or a guard that starts the updater again. Main thread; ends the program with its exit
/// code.
class Installer : public QObject
{
    Q_OBJECT

public:
    Installer();

    void installLate();
    /// Keeps an updater running until the orders say otherwise. False: another guard is there.
    [[nodiscard]] bool guard();

private:
    QLockFile m_lock;
};

} // namespace simulator
