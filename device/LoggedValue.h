#pragma once

#include "device/DisplayValues.h"
#include "logging/Log.h"

#include <QString>

#include <mutex>
#include <optional>
#include <type_traits>
#include <utility>

/// A value whose changes are logged. Any thread; each value is guarded by a mutex of its own. The
/// log line is written under it, so that the lines of two threads appear in the order of the
/// changes.
template <typename Value>
class LoggedValue
{
public:
    struct Labels {
        /// Qualified name of the setter.
        const char* function;
        const char* oldValue;
        const char* newValue;
    };

    explicit LoggedValue(const Labels& labels, Value initial = {})
        : m_labels(labels)
        , m_value(std::move(initial))
    {
    }

    Value get() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_value;
    }

    /// Logs and stores the value. False, with neither, when it is the stored one already.
    bool set(const Value& newValue) { return change(newValue, std::nullopt); }
    /// The same for a setter that logs its direction.
    bool set(const Value& newValue, Direction direction) { return change(newValue, direction); }

private:
    bool change(const Value& newValue, std::optional<Direction> direction)
    {
        const std::scoped_lock lock(m_mutex);
        if (m_value == newValue)
            return false;
        log(newValue, direction);
        m_value = newValue;
        return true;
    }

    void log(const Value& newValue, std::optional<Direction> direction) const
    {
        auto line = Log::info(m_labels.function);
        if (direction)
            line << "direction:" << static_cast<int>(*direction) << ", ";
        line << m_labels.oldValue << loggable(m_value) << m_labels.newValue << loggable(newValue);
    }

    /// Enumerations are logged as their numbers.
    static auto loggable(const Value& value)
    {
        if constexpr (std::is_enum_v<Value>)
            return static_cast<std::underlying_type_t<Value>>(value);
        else
            return value;
    }

    const Labels m_labels;
    mutable std::mutex m_mutex;
    Value m_value; // under the mutex
};
