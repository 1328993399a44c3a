#pragma once

#include "platform/DeviceEnumeration.h"

#include <QRegularExpression>
#include <QString>

#include <optional>

/// The filter of a rule. It fits a device whose instance id or friendly name contains a match of
/// the filter as a regular expression, or contains the filter literally, both case-insensitive.
///
/// The expression is foreign input: matching stops after a fixed number of steps, and the device
/// then counts as not matched by the expression. One thread at a time.
class DeviceFilter
{
public:
    explicit DeviceFilter(const QString& text);

    [[nodiscard]] bool fits(const platform::DeviceRecord& device);
    /// True when the filter is only compared literally, as it is no regular expression or too long
    /// for one.
    [[nodiscard]] bool isPlainText() const { return !m_expression; }

    /// Longest filter that is used as a regular expression, in UTF-16 units.
    static constexpr qsizetype MaxExpressionLength = 4096;
    /// Length of an id or name that is compared, in UTF-16 units. Windows reports no longer ones.
    static constexpr qsizetype MaxSubjectLength = 512;

private:
    bool matches(const QString& subject);

    QString m_text;
    std::optional<QRegularExpression> m_expression;
    bool m_hasReportedLimit = false;
};
