#pragma once

#include "simulator/account/AccountService.h"
#include "simulator/script/Feature.h"
#include "simulator/script/MessageMemory.h"

namespace simulator
{

class EventLog;

/// The commands of the account service: address, accounts, faults and expected requests. Each
/// request is an event, without passwords and tokens.
class AccountFeature : public Feature
{
    Q_OBJECT

public:
    /// @p log must outlive the feature.
    AccountFeature(EventLog& log, QObject* parent = nullptr);

    QString name() const override;
    void addCommands(CommandInterpreter& interpreter) override;
    QJsonObject status() const override;

    /// Drops the stored requests, so that later expectations look only at new ones.
    void forgetRequests() { m_requests.forget(); }

private:
    void addServiceCommands(CommandInterpreter& interpreter);
    void addAccountCommands(CommandInterpreter& interpreter);
    void addFaultCommands(CommandInterpreter& interpreter);
    void addExpectations(CommandInterpreter& interpreter);

    QString listen(quint16 port);
    QString addAccount(Account account, const QString& pictureFile);
    QString expireSessions(const QString& email);
    void showAccounts();
    void noteRequest(const AccountRequest& request);

    EventLog& m_log;
    AccountService m_service;
    MessageMemory m_requests{QStringLiteral("request")};
    quint16 m_lastPort = 0; // used again after "account close", because programs know it
};

} // namespace simulator
