#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class QSharedMemory;

/// System objects of the single-instance guard: a QSharedMemory segment, a local server and a lock.
/// They belong to one user, on Windows to one session, so that two users of a machine do not affect
/// each other. Any thread.
namespace platform
{

/// Gives the segment its key. On Linux this is the path of a file in the user's runtime folder.
void setInstanceKey(QSharedMemory& segment, const QString& name);

/// Name for QLocalServer and QLocalSocket. On Linux this is the path of a socket in the user's
/// runtime folder.
[[nodiscard]] QString instanceServerName(const QString& name);

/// Removes the folder of these objects if this program created it and it is empty. Call it when the
/// objects are closed.
void removeInstanceFolder();

/// Serialises the starts of several processes while each attaches to or creates the segment.
/// Otherwise one start could mistake the short attachment of another for a running instance. The
/// system releases the lock when its holder dies.
class InstanceLock
{
public:
    /// Waits for at most `patienceMs` milliseconds. Check isHeld() for the result.
    explicit InstanceLock(const QString& name, int patienceMs = 5000);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    [[nodiscard]] bool isHeld() const;

private:
    class Private;
    std::unique_ptr<Private> m_private;
};

/// Time that a second start tries to reach the first one, in milliseconds.
[[nodiscard]] int handOverPatienceMs();

/// Passes on this start's right to bring a window to the front, which Windows and Wayland give to
/// the active program only. Returns what has to be sent to the running instance: under Wayland the
/// token of the launcher, otherwise nothing.
[[nodiscard]] QByteArray passOnForegroundRight();

/// Uses what another start has sent for the next activation of a window. Main thread.
void takeForegroundRight(const QByteArray& right);

} // namespace platform
