#pragma once

#include "simulator/display/Protocol.h"
#include "simulator/script/Feature.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPair>

#include <functional>

namespace simulator
{

class EventLog;

/// The display: its state, and what it does with each message from the program. Other parts of the
/// display (the camera) bring their own messages. It knows no socket; what it sends is a signal.
class DisplayModel : public Feature
{
    Q_OBJECT

public:
    using Handler = std::function<void(const QJsonObject& message)>;

    /// Mode of a display that is set up.
    static constexpr int NormalUse = 1;

    enum class Source { None, Available, Byod, Zoom };

    explicit DisplayModel(EventLog& log, QObject* parent = nullptr);

    QString name() const override;
    void addCommands(CommandInterpreter& interpreter) override;
    QJsonObject status() const override;

    /// Names what happens with one kind of message from the program.
    void on(ChannelCommand command, MessageType type, const Handler& handler);
    /// Takes a message from the program. Without a connected display nothing happens.
    void receive(int id, const QByteArray& text);
    /// A program has come: a connected display reports itself.
    void greet();

    /// Sends a report of the display (type 2), if it is connected.
    void report(ChannelCommand command, const QJsonObject& payload);
    /// Answers @p query (type 1), under its sequence number.
    void answer(const QJsonObject& query, ChannelCommand command, const QJsonObject& payload);

    /// @p mode 1: normal use, 2: waits for its first-run set-up, others: unsupported by programs.
    void connectDisplay(int mode);
    void disconnectDisplay();
    void setVolume(int volume);
    void setSource(Source source);
    void setVersion(const QString& version);
    void setAcknowledging(bool on);

signals:
    void send(int id, const QByteArray& text);

private:
    void addHandlers();
    void addConnectionCommands(CommandInterpreter& interpreter);
    void addStateCommands(CommandInterpreter& interpreter);
    void sendMessage(ChannelCommand command, MessageType type, int seq, QJsonObject message);
    void acknowledge(int id, QJsonObject message);
    void takeVolume(const QJsonObject& message);
    void startSetup();
    void reportSource();
    void stateChanged();
    QJsonObject sourcePayload() const;

    EventLog& m_log;
    QHash<QPair<int, int>, Handler> m_handlers; // by command and type
    int m_seq = 0;
    int m_mode = 0;
    int m_volume = 40;
    Source m_source = Source::Available;
    QString m_version;
    bool m_setupRunning = false;
    bool m_acknowledging = true;
};

} // namespace simulator
