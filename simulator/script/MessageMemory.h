#pragma once

#include "simulator/script/CommandInterpreter.h"
#include "simulator/script/MessagePattern.h"

#include <QJsonObject>
#include <QString>

#include <deque>

namespace simulator
{

/// Stores messages for the commands that expect them. A message fulfils at most one expectation,
/// and may have arrived before the expectation started. Beyond 10,000 messages the oldest are
/// dropped.
class MessageMemory
{
public:
    /// @p noun names one message in the text of a failed expectation.
    explicit MessageMemory(const QString& noun)
        : m_noun(noun)
    {
    }

    void note(int id, const QJsonObject& message);
    void forget() { m_messages.clear(); }

    /// Both take an optional "within <seconds>" from @p arguments; the default is 5 s. The memory
    /// must outlive the action. The caller of note() has to report a change of its feature, so that
    /// waiting commands are evaluated again.
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
