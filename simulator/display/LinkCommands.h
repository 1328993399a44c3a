#pragma once

#include "simulator/script/Feature.h"

namespace simulator
{

class DisplayLink;
class EventLog;

/// The commands of the connection below the display: raw messages and faults.
class LinkCommands : public Feature
{
    Q_OBJECT

public:
    /// @p link must outlive the commands.
    LinkCommands(DisplayLink& link, EventLog& log, QObject* parent = nullptr);

    QString name() const override;
    void addCommands(CommandInterpreter& interpreter) override;
    QJsonObject status() const override;

private:
    void addSendCommands(CommandInterpreter& interpreter);
    void addFaultCommands(CommandInterpreter& interpreter);
    QString setLinkUp(bool up);
    void sendRaw(const QByteArray& bytes);

    DisplayLink& m_link;
    EventLog& m_log;
};

} // namespace simulator
