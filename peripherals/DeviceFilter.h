#pragma once

#include "platform/DeviceEnumeration.h"

#include <QRegularExpression>
#include <QString>

#include <optional>

/// A rule's filter, ready for use. It fits a device whose instance id or friendly name contains a
/// match of it as a regular expression or contains its text as it stands, both in any case.
///
/// The expression is foreign input: matching gives up after a fixed number of steps, and a filter
/// that once ran into that limit is a plain text from then on. One thread at a time.
class DeviceFilter
{
public:
    explicit DeviceFilter(const QString& text);

    [[nodiscard]] bool fits(const platform::DeviceRecord& device);
    /// True when the filter is only compared as a text: not a regular expression, too long for one,
    /// or one that took too long.
    [[nodiscard]] bool isPlainText() const { return !m_expression; }

    /// Longest filter that is read as a regular expression, in UTF-16 units.
    static constexpr qsizetype MaxExpressionLength = 512;
    /// How much of an id or name is looked at, in UTF-16 units. Windows hands out no more than
    /// this.
    static constexpr qsizetype MaxSubjectLength = 512;

private:
    bool matches(const QString& subject);

    QString m_text;
    std::optional<QRegularExpression> m_expression;
};
