#pragma once

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QString>

/// One user of the simulated account service.
struct Account {
    QString userId; ///< given by the store when empty
    QString email;
    QString password;
    QString firstName;
    QString lastName;
    QString company;
    QString title;
    QString picture; ///< Base64 text without a prefix
    bool verified = true;
};

/// A letter the service would have sent.
struct AccountMail {
    enum class Kind { Verification, PasswordReset };
    Kind kind;
    QString address;
};

/// The service's state and its rules: accounts, sessions, letters. Knows nothing of HTTP beyond the
/// status that goes with an answer. E-mail addresses compare without case.
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
    /// Null when there is none; valid until the next account is added.
    [[nodiscard]] const Account* accountByEmail(const QString& email) const;
    [[nodiscard]] const Account* accountById(const QString& userId) const;

    [[nodiscard]] const QList<AccountMail>& mails() const { return m_mails; }

    /// Whether a new account has to be verified before it can sign in. Off at first: there is no
    /// mailbox to click a link in.
    void setVerificationRequired(bool required) { m_verificationRequired = required; }

    /// Follows the link of the verification letter. False when there is no such account.
    bool verify(const QString& email);

    /// Ends all sessions of a user, as an expiry would.
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
