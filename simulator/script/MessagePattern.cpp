#include "simulator/script/MessagePattern.h"

#include "simulator/script/CommandArguments.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <limits>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

// Any JSON value. Text that is not JSON is taken as a string.
QJsonValue parseValue(const QString& text)
{
    const QJsonDocument document = QJsonDocument::fromJson("[" + text.toUtf8() + "]");
    if (document.array().size() == 1)
        return document.array().first();
    return text;
}

} // namespace

MessagePattern MessagePattern::parse(CommandArguments& arguments)
{
    const int id = arguments.integer(u"the id"_s, std::numeric_limits<int>::min(),
                                     std::numeric_limits<int>::max());
    return parseConditions(id, arguments);
}

MessagePattern MessagePattern::parseConditions(int id, CommandArguments& arguments)
{
    MessagePattern pattern;
    pattern.m_id = id;
    while (!arguments.atEnd() && arguments.peek() != "within"_L1)
        pattern.m_conditions.append(parseCondition(arguments.word(u"a condition"_s), arguments));
    return pattern;
}

MessagePattern::Condition MessagePattern::parseCondition(const QString& word,
                                                         CommandArguments& arguments)
{
    const qsizetype equals = word.indexOf(u'=');
    const bool negated = equals > 0 && word.at(equals - 1) == u'!';
    const QString key = equals < 0 ? word : word.left(negated ? equals - 1 : equals);
    if (key.isEmpty())
        arguments.fail(u"\"%1\" names no key"_s.arg(word));
    if (equals < 0)
        return {Condition::Kind::Present, key, {}};
    return {negated ? Condition::Kind::NotEqual : Condition::Kind::Equal, key,
            parseValue(word.sliced(equals + 1))};
}

bool MessagePattern::matches(int id, const QJsonObject& message) const
{
    return id == m_id && std::all_of(m_conditions.begin(), m_conditions.end(),
                                     [&](const Condition& one) { return one.holds(message); });
}

bool MessagePattern::Condition::holds(const QJsonObject& message) const
{
    switch (kind) {
    case Kind::Equal:
        return message.value(key) == value;
    case Kind::NotEqual:
        return message.contains(key) && message.value(key) != value;
    case Kind::Present:
        return message.contains(key);
    }
    return false;
}
