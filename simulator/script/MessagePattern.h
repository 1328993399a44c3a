#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

namespace simulator
{

class CommandArguments;

/// Which messages an expectation means: an id and conditions on the keys of the JSON object.
class MessagePattern
{
public:
    /// Takes "<id> [key=value|key!=value|key ...]" up to the end or the word "within".
    static MessagePattern parse(CommandArguments& arguments);
    /// The same for messages of a known id, without it.
    static MessagePattern parseConditions(int id, CommandArguments& arguments);

    bool matches(int id, const QJsonObject& message) const;

private:
    struct Condition {
        enum class Kind { Equal, NotEqual, Present } kind;
        QString key;
        QJsonValue value;

        bool holds(const QJsonObject& message) const;
    };

    static Condition parseCondition(const QString& word, CommandArguments& arguments);

    int m_id = 0;
    QList<Condition> m_conditions;
};

} // namespace simulator
