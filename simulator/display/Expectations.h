#pragma once

#include "simulator/script/Feature.h"
#include "simulator/script/MessageMemory.h"

#include <QByteArray>

namespace simulator
{

/// Stores the messages of both directions and provides the commands that expect them.
class Expectations : public Feature
{
    Q_OBJECT

public:
    using Feature::Feature;

    QString name() const override;
    void addCommands(CommandInterpreter& interpreter) override;

    void noteReceived(int id, const QByteArray& text);
    void noteSent(int id, const QByteArray& text);

signals:
    /// The command "forget" ran: all features drop the messages that they have stored.
    void forgotten();

private:
    void addExpect(CommandInterpreter& interpreter, const QString& name, const QString& help,
                   MessageMemory& memory);

    MessageMemory m_received{QStringLiteral("message")};
    MessageMemory m_sent{QStringLiteral("message")};
};

} // namespace simulator
