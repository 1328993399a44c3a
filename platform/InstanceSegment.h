#pragma once

#include <QString>

#include <memory>

/// Helpers of the single-instance guard, which is a QSharedMemory segment.
namespace platform
{

/// Serialises the starts of several processes while each attaches to or creates the segment.
/// Otherwise one start could mistake the short attachment of another for a running instance. The
/// system releases the lock when its holder dies.
class InstanceLock
{
public:
    /// Waits for at most `patienceMs` milliseconds. Check isHeld() for the result.
    explicit InstanceLock(const QString& key, int patienceMs = 5000);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    [[nodiscard]] bool isHeld() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

/// Time that a second start tries to reach the first one, in milliseconds.
[[nodiscard]] int handOverPatienceMs();

} // namespace platform
