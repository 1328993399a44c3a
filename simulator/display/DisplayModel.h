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

/// The display: its state and its reaction to each message from the program. Other parts of the
/// display (the camera) register the handlers of their own messages. It has no connection itself:
/// it emits what it sends.
class DisplayModel : public Feature
{
    Q_OBJECT

public:
    using Handler = std::function<void(const QJsonObject& message)>;

    /// Connection modes (message 0).
    static constexpr int NormalUse = 1;
    static constexpr int FirstRun = 2;

    enum class Source { None, Available, Byod, Zoom };

    explicit DisplayModel(EventLog& log, QObject* parent = nullptr);

    QString name() const override;
    void addCommands(CommandInterpreter& interpreter) override;
    QJsonObject status() const override;

    /// Registers the handler of one kind of message from the program.
    void on(ChannelCommand command, MessageType type, const Handler& handler);
    /// Handles a message from the program. Does nothing while the display is not connected.
    void receive(int id, const QByteArray& text);
    /// Reports the state to a program that has just connected, if the display is connected.
    void greet();

    /// Sends a report (type 2) if the display is connected.
    void report(ChannelCommand command, const QJsonObject& payload);
    /// Answers @p query (type 1) with the sequence number of the query.
    void answer(const QJsonObject& query, ChannelCommand command, const QJsonObject& payload);

    /// @p mode NormalUse, FirstRun, or a number that programs do not support.
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
