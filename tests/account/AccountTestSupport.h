#pragma once

#include "account/AccountIdentity.h"
#include "account/NetworkManager.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QNetworkReply>
#include <QStringList>
#include <QTimer>

/// The signed-in user, as a test says.
class FakeIdentity : public AccountIdentity
{
public:
    QString userId() const override { return m_userId; }
    QString token() const override { return m_token; }
    QString rawPicture() const override { return m_rawPicture; }

    QString m_userId;
    QString m_token;
    QString m_rawPicture;
};

/// Everything a NetworkManager reports, in order: "signal" or "signal: text".
class SignalRecorder : public QObject
{
    Q_OBJECT

public:
    explicit SignalRecorder(const NetworkManager& network)
    {
        using N = NetworkManager;
        onObject(network, &N::loginSuccess, QStringLiteral("loginSuccess"));
        onText(network, &N::loginFailed, QStringLiteral("loginFailed"));
        onNothing(network, &N::registrationSuccess, QStringLiteral("registrationSuccess"));
        onText(network, &N::registrationFailed, QStringLiteral("registrationFailed"));
        onNothing(network, &N::passwordResetSent, QStringLiteral("passwordResetSent"));
        onText(network, &N::passwordResetFailed, QStringLiteral("passwordResetFailed"));
        onObject(network, &N::profileUpdateSuccess, QStringLiteral("profileUpdateSuccess"));
        onText(network, &N::profileUpdateFailed, QStringLiteral("profileUpdateFailed"));
        onObject(network, &N::profileRequestSuccess, QStringLiteral("profileRequestSuccess"));
        onText(network, &N::profileRequestFailed, QStringLiteral("profileRequestFailed"));
    }

    /// Waits for that many reports in all; false after a minute.
    [[nodiscard]] bool waitForEvents(qsizetype count)
    {
        // Unlike a polling wait, an event loop lets large bodies pass at full speed.
        QEventLoop loop;
        connect(this, &SignalRecorder::recorded, &loop, [&] {
            if (events.size() >= count)
                loop.quit();
        });
        QTimer::singleShot(60'000, &loop, &QEventLoop::quit);
        if (events.size() < count)
            loop.exec();
        return events.size() >= count;
    }

    QStringList events;
    QJsonObject lastObject;

signals:
    void recorded();

private:
    template <typename Signal>
    void onObject(const NetworkManager& network, Signal signal, const QString& name)
    {
        connect(&network, signal, this, [this, name](const QJsonObject& object) {
            lastObject = object;
            record(name);
        });
    }
    template <typename Signal>
    void onText(const NetworkManager& network, Signal signal, const QString& name)
    {
        connect(&network, signal, this,
                [this, name](const QString& text) { record(name + QStringLiteral(": ") + text); });
    }
    template <typename Signal>
    void onNothing(const NetworkManager& network, Signal signal, const QString& name)
    {
        connect(&network, signal, this, [this, name] { record(name); });
    }

    void record(const QString& event)
    {
        events.append(event);
        emit recorded();
    }
};

/// Whether a manager holds no request any more: its guards are gone, with their timers and replies.
inline bool isIdle(const NetworkManager& network)
{
    return network.findChildren<RequestGuard*>().isEmpty();
}
