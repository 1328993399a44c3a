#pragma once

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QString>

/// A user of the simulated account service.
struct Account {
    QString userId; ///< set by the store if empty
    QString email;
    QString password;
    QString firstName;
    QString lastName;
    QString company;
    QString title;
    QString picture; ///< Base64 text without a prefix
    bool verified = true;
};

/// An e-mail that a real service would have sent.
struct AccountMail {
    enum class Kind { Verification, PasswordReset };
    Kind kind;
    QString address;
};

/// State and rules of the service: accounts, sessions, e-mails. Independent of HTTP except for the
/// status of an answer. E-mail addresses are compared without case.
class AccountStore
{
public:
    struct Answer {
        int status = 200;
        QJsonObject body;
    };

    /// Adds an account and returns its user id.
    QString addAccount(Account account);

    [[nodiscard]] const QList<Account>& accounts() const { return m_accounts; }
    /// Null if there is none. Valid until the next account is added.
    [[nodiscard]] const Account* accountByEmail(const QString& email) const;

    [[nodiscard]] const QList<AccountMail>& mails() const { return m_mails; }

    /// Whether a new account has to be verified before it can sign in. Off by default, because
    /// there is no mailbox.
    void setVerificationRequired(bool required) { m_verificationRequired = required; }

    /// Verifies an account, as the link in the e-mail does. False if there is no such account.
    bool verify(const QString& email);

    /// Ends all sessions of a user.
    void revokeTokens(const QString& userId);

    [[nodiscard]] Answer signIn(const QString& email, const QString& password);
    [[nodiscard]] Answer registerAccount(const Account& wanted);
    [[nodiscard]] Answer requestPasswordReset(const QString& email);
    [[nodiscard]] Answer readProfile(const QString& userId, const QString& token) const;
    [[nodiscard]] Answer updateProfile(const QString& userId, const QString& token,
                                       const QJsonObject& fields);

private:
    [[nodiscard]] qsizetype indexByEmail(const QString& email) const;
    [[nodiscard]] qsizetype indexForSession(const QString& userId, const QString& token) const;

    QList<Account> m_accounts;
    QHash<QString, QString> m_userIdByToken;
    QList<AccountMail> m_mails;
    int m_lastUserId = 1000;
    bool m_verificationRequired = false;
};
