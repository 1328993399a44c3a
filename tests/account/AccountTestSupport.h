#pragma once

#include "account/AccountIdentity.h"
#include "account/NetworkManager.h"

#include <QEventLoop>
#include <QStringList>
#include <QTimer>

/// A signed-in user that the test sets.
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

/// The signals of a NetworkManager in order, as "signal" or "signal: text".
class SignalRecorder : public QObject
{
    Q_OBJECT

public:
    explicit SignalRecorder(const NetworkManager& network)
    {
        using namespace Qt::StringLiterals;
        using N = NetworkManager;
        const auto watch = [this, &network](auto signal, QLatin1StringView name) {
            connect(&network, signal, this,
                    [this, name](const auto&... value) { record(name, value...); });
        };
        watch(&N::loginSuccess, "loginSuccess"_L1);
        watch(&N::loginFailed, "loginFailed"_L1);
        watch(&N::registrationSuccess, "registrationSuccess"_L1);
        watch(&N::registrationFailed, "registrationFailed"_L1);
        watch(&N::passwordResetSent, "passwordResetSent"_L1);
        watch(&N::passwordResetFailed, "passwordResetFailed"_L1);
        watch(&N::profileUpdateSuccess, "profileUpdateSuccess"_L1);
        watch(&N::profileUpdateFailed, "profileUpdateFailed"_L1);
        watch(&N::profileRequestSuccess, "profileRequestSuccess"_L1);
        watch(&N::profileRequestFailed, "profileRequestFailed"_L1);
    }

    /// Waits until there are `count` events in all; false after a minute.
    [[nodiscard]] bool waitForEvents(qsizetype count)
    {
        QEventLoop loop; // does not slow down large bodies as polling would
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
    void record(const QString& event)
    {
        events.append(event);
        emit recorded();
    }
    void record(const QString& name, const QString& text)
    {
        record(name + QStringLiteral(": ") + text);
    }
    void record(const QString& name, const QJsonObject& object)
    {
        lastObject = object;
        record(name);
    }
};

/// Whether no request is left: the guards with their replies and timers are deleted.
inline bool isIdle(const NetworkManager& network)
{
    return network.findChildren<RequestGuard*>().isEmpty();
}
