#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <utility>

namespace simulator
{

/// What a command came to: done, failed, or something the script has to wait for first.
struct CommandOutcome {
    enum class Kind { Done, Failed, Wait, Quit };

    Kind kind = Kind::Done;
    QString reason;            ///< why it failed, or will have failed when the wait ends badly
    std::function<bool()> met; ///< looked at again whenever a feature reports a change
    std::chrono::milliseconds limit{};
    bool failsWhenMet = false;

    static CommandOutcome done() { return {}; }
    static CommandOutcome failed(const QString& reason) { return {Kind::Failed, reason, {}, {}}; }
    /// No further command of this script runs.
    static CommandOutcome quit() { return {Kind::Quit, {}, {}, {}}; }
    static CommandOutcome pause(std::chrono::milliseconds limit)
    {
        return {Kind::Wait, {}, {}, limit};
    }
    /// Goes on once @p met, fails with @p reason after @p limit.
    static CommandOutcome until(std::function<bool()> met, std::chrono::milliseconds limit,
                                const QString& reason)
    {
        return {Kind::Wait, reason, std::move(met), limit};
    }
    /// Fails with @p reason once @p met, goes on after @p limit.
    static CommandOutcome unless(std::function<bool()> met, std::chrono::milliseconds limit,
                                 const QString& reason)
    {
        return {Kind::Wait, reason, std::move(met), limit, true};
    }
};

} // namespace simulator
