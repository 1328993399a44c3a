#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <utility>

namespace simulator
{

/// Result of a command: done, failed, or a condition for which the script waits.
struct CommandOutcome {
    enum class Kind { Done, Failed, Wait, Quit };

    Kind kind = Kind::Done;
    QString reason;            ///< of a failure, or of the failure in which a wait can end
    std::function<bool()> met; ///< condition, evaluated again after each change of a feature
    std::chrono::milliseconds limit{};
    bool failsWhenMet = false;

    static CommandOutcome done() { return {}; }
    static CommandOutcome failed(const QString& reason) { return {Kind::Failed, reason, {}, {}}; }
    /// Ends the script.
    static CommandOutcome quit() { return {Kind::Quit, {}, {}, {}}; }
    static CommandOutcome pause(std::chrono::milliseconds limit)
    {
        return {Kind::Wait, {}, {}, limit};
    }
    /// Continues when @p met returns true and fails with @p reason after @p limit.
    static CommandOutcome until(std::function<bool()> met, std::chrono::milliseconds limit,
                                const QString& reason)
    {
        return {Kind::Wait, reason, std::move(met), limit};
    }
    /// Fails with @p reason when @p met returns true and continues after @p limit.
    static CommandOutcome unless(std::function<bool()> met, std::chrono::milliseconds limit,
                                 const QString& reason)
    {
        return {Kind::Wait, reason, std::move(met), limit, true};
    }
};

} // namespace simulator
