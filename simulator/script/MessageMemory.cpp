#include "simulator/script/MessageMemory.h"

#include <algorithm>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

constexpr size_t MaxRemembered = 10'000;
constexpr auto DefaultLimit = std::chrono::seconds(5);

std::chrono::milliseconds parseLimit(CommandArguments& arguments)
{
    if (arguments.atEnd())
        return DefaultLimit;
    arguments.word({}); // "within", because nothing else ends a pattern
    return arguments.seconds(u"the time"_s);
}

} // namespace

void MessageMemory::note(int id, const QJsonObject& message)
{
    m_messages.push_back({id, message});
    if (m_messages.size() > MaxRemembered)
        m_messages.pop_front();
}

CommandAction MessageMemory::expect(const MessagePattern& pattern, CommandArguments& arguments)
{
    const auto limit = parseLimit(arguments);
    return [this, pattern, limit] {
        return CommandOutcome::until(
            [this, pattern] { return take(pattern); }, limit,
            u"no such %1 within %2 s"_s.arg(m_noun).arg(double(limit.count()) / 1000));
    };
}

CommandAction MessageMemory::expectNone(const MessagePattern& pattern, CommandArguments& arguments)
{
    const auto limit = parseLimit(arguments);
    return [this, pattern, limit] {
        return CommandOutcome::unless([this, pattern] { return take(pattern); }, limit,
                                      u"such a %1 came"_s.arg(m_noun));
    };
}

bool MessageMemory::take(const MessagePattern& pattern)
{
    const auto found = std::find_if(m_messages.begin(), m_messages.end(), [&](const Noted& noted) {
        return pattern.matches(noted.id, noted.message);
    });
    if (found == m_messages.end())
        return false;
    m_messages.erase(found);
    return true;
}
