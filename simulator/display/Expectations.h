#pragma once

#include "simulator/script/Feature.h"

#include <QByteArray>

#include <deque>

namespace simulator
{

class MessagePattern;

/// Remembers the messages of both directions and holds scripts to what they expect of them. Each
/// message satisfies one expectation at most; messages that came before it count, until forgotten.
class Expectations : public Feature
{
    Q_OBJECT

public:
    using Feature::Feature;

    QString name() const override;
    void addCommands(CommandInterpreter& interpreter) override;

    void noteReceived(int id, const QByteArray& text);
    void noteSent(int id, const QByteArray& text);

private:
    struct Noted {
        int id;
        QJsonObject message;
    };
    using Memory = std::deque<Noted>;

    void addExpect(CommandInterpreter& interpreter, const QString& name, const QString& help,
                   Memory& memory);
    void addExpectNone(CommandInterpreter& interpreter);
    void note(Memory& memory, int id, const QByteArray& text);
    static bool take(Memory& memory, const MessagePattern& pattern);

    Memory m_received;
    Memory m_sent;
};

} // namespace simulator
