#pragma once

#include "simulator/script/CommandInterpreter.h"
#include "simulator/script/MessagePattern.h"

#include <QJsonObject>
#include <QString>

#include <deque>

namespace simulator
{

/// What came or went, for commands that expect something of it. Each message satisfies one
/// expectation at most; messages that came before it count, until they are forgotten. Old ones are
/// dropped when there are too many.
class MessageMemory
{
public:
    /// @p noun names one message in what a failed expectation says.
    explicit MessageMemory(const QString& noun)
        : m_noun(noun)
    {
    }

    void note(int id, const QJsonObject& message);
    void forget() { m_messages.clear(); }

    /// Both take "[within <seconds>]" from @p arguments, which ends a pattern; 5 s without it. The
    /// memory must outlive the action. Whoever notes a message has to have waiting commands look
    /// again.
    [[nodiscard]] CommandAction expect(const MessagePattern& pattern, CommandArguments& arguments);
    [[nodiscard]] CommandAction expectNone(const MessagePattern& pattern,
                                           CommandArguments& arguments);

private:
    struct Noted {
        int id;
        QJsonObject message;
    };

    bool take(const MessagePattern& pattern);

    QString m_noun;
    std::deque<Noted> m_messages;
};

} // namespace simulator
