#pragma once

#include <functional>
#include <memory>

namespace platform
{

/// Follows the system's setting by which the user does without animations. Main thread, while the
/// application object exists.
class ReducedMotion
{
public:
    /// @param changed  called with the setting, once it is known and after each change of it. Never
    ///                 called where the system has no such setting.
    explicit ReducedMotion(std::function<void(bool isWanted)> changed);
    ~ReducedMotion();
    ReducedMotion(const ReducedMotion&) = delete;
    ReducedMotion& operator=(const ReducedMotion&) = delete;

private:
    class Private;
    std::unique_ptr<Private> m_private;
};

} // namespace platform
