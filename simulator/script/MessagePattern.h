#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

namespace simulator
{

class CommandArguments;

/// The condition that an expectation sets: a message id, and conditions on keys of the object.
class MessagePattern
{
public:
    /// Takes "<id> [key=value|key!=value|key ...]" up to the word "within" or the end.
    static MessagePattern parse(CommandArguments& arguments);
    /// Takes the conditions only; the id is known.
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
