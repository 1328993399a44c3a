#include "peripherals/DeviceFilter.h"

#include "logging/Log.h"

using namespace Qt::StringLiterals;

namespace
{

// The engine's interpreter counts steps in the same way on every system, unlike compiled matching.
// Steps are counted from each start position. Useful filters need some hundred; a filter that
// backtracks without end is stopped within a fraction of a millisecond. The empty comment ends the
// list of options, so that options at the start of a filter cannot lift the limits. Unlike an empty
// group, a comment cannot be repeated by a quantifier at the start of the filter.
constexpr auto Limits = "(*NO_JIT)(*LIMIT_MATCH=10000)(*LIMIT_HEAP=4096)(?#)"_L1;

std::optional<QRegularExpression> compile(const QString& text)
{
    if (text.size() > DeviceFilter::MaxExpressionLength) {
        Log::error("DeviceFilter::DeviceFilter")
            << "filter is longer than " << DeviceFilter::MaxExpressionLength
            << " characters, compared as plain text:" << text;
        return std::nullopt;
    }
    QRegularExpression expression(Limits + text, QRegularExpression::CaseInsensitiveOption);
    if (!expression.isValid())
        return std::nullopt;
    return expression;
}

/// The engine refuses ill-formed text, which a device name can contain.
QString wellFormed(const QString& text)
{
    const QString subject = text.left(DeviceFilter::MaxSubjectLength);
    return subject.isValidUtf16() ? subject : QString::fromUtf8(subject.toUtf8());
}

} // namespace

DeviceFilter::DeviceFilter(const QString& text)
    : m_text(text)
    , m_expression(compile(text))
{
}

bool DeviceFilter::fits(const platform::DeviceRecord& device)
{
    const QString id = wellFormed(device.instanceId);
    const QString name = wellFormed(device.friendlyName);
    return matches(id) || matches(name) || id.contains(m_text, Qt::CaseInsensitive) ||
           name.contains(m_text, Qt::CaseInsensitive);
}

bool DeviceFilter::matches(const QString& subject)
{
    if (!m_expression)
        return false;
    const auto match = m_expression->match(subject);
    if (match.isValid())
        return match.hasMatch();
    if (!m_hasReportedLimit)
        Log::error("DeviceFilter::matches")
            << "filter takes too long for a device, which it does not match:" << m_text;
    m_hasReportedLimit = true;
    return false;
}
