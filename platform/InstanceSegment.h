#pragma once

#include <QString>

#include <memory>

/// Helpers of the single-instance guard, whose mark is a QSharedMemory segment.
namespace platform
{

/// Held by a start while it attaches to or creates the segment, so that two starts never
/// take each other's short attachment for a running instance. The system frees it when its holder
/// dies.
class InstanceLock
{
public:
    /// Waits up to `patienceMs`; on failure the start goes on unguarded.
    explicit InstanceLock(const QString& key, int patienceMs = 5000);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    [[nodiscard]] bool isHeld() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

/// How long a second start tries to reach the first one, in milliseconds.
[[nodiscard]] int handOverPatienceMs();

} // namespace platform
