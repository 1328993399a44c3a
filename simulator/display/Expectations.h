#pragma once

#include "simulator/script/Feature.h"
#include "simulator/script/MessageMemory.h"

#include <QByteArray>

namespace simulator
{

/// Remembers the messages of both directions and holds scripts to what they expect of them.
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
    /// Later expectations, also those of other features, are to look only at what is yet to come.
    void forgotten();

private:
    void addExpect(CommandInterpreter& interpreter, const QString& name, const QString& help,
                   MessageMemory& memory);
    void addExpectNone(CommandInterpreter& interpreter);

    MessageMemory m_received{QStringLiteral("message")};
    MessageMemory m_sent{QStringLiteral("message")};
};

} // namespace simulator
