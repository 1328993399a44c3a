#include "simulator/account/AccountStore.h"

#include <QUuid>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

AccountStore::Answer refusal(int status, const QString& message)
{
    return {status, {{"success"_L1, false}, {"message"_L1, message}}};
}

AccountStore::Answer sessionExpired()
{
    return refusal(401, u"Your session has expired. Please sign in again."_s);
}

// The fields that a profile edit returns; user objects have more.
QJsonObject editableFields(const Account& account)
{
    return {{"firstName"_L1, account.firstName},
            {"lastName"_L1, account.lastName},
            {"company"_L1, account.company},
            {"title"_L1, account.title},
            {"picture"_L1, account.picture}};
}

QJsonObject userObject(const Account& account)
{
    QJsonObject user = editableFields(account);
    user.insert("userId"_L1, account.userId);
    user.insert("email"_L1, account.email);
    return user;
}

} // namespace

QString AccountStore::addAccount(Account account)
{
    if (account.userId.isEmpty())
        account.userId = QString::number(++m_lastUserId);
    m_accounts.append(std::move(account));
    return m_accounts.constLast().userId;
}

const Account* AccountStore::accountByEmail(const QString& email) const
{
    const auto index = indexByEmail(email);
    return index < 0 ? nullptr : &m_accounts.at(index);
}

bool AccountStore::verify(const QString& email)
{
    const auto index = indexByEmail(email);
    if (index < 0)
        return false;
    m_accounts[index].verified = true;
    return true;
}

void AccountStore::revokeTokens(const QString& userId)
{
    m_userIdByToken.removeIf([&userId](const auto& session) { return session.value() == userId; });
}

AccountStore::Answer AccountStore::signIn(const QString& email, const QString& password)
{
    const Account* account = accountByEmail(email);
    if (!account || account->password != password)
        return refusal(401, u"The email or password is incorrect."_s);
    if (!account->verified)
        return refusal(403, u"Please verify your email address before signing in."_s);

    const QString token = QUuid::createUuid().toString(QUuid::Id128);
    m_userIdByToken.insert(token, account->userId);
    const QJsonObject data{{"token"_L1, token}, {"user"_L1, userObject(*account)}};
    return {200, {{"success"_L1, true}, {"data"_L1, data}}};
}

AccountStore::Answer AccountStore::registerAccount(const Account& wanted)
{
    if (wanted.email.isEmpty() || wanted.password.isEmpty())
        return refusal(400, u"Email and password are required."_s);
    if (accountByEmail(wanted.email))
        return refusal(409, u"An account with this email already exists."_s);

    Account account = wanted;
    account.verified = !m_verificationRequired;
    const QString userId = addAccount(std::move(account));
    m_mails.append({AccountMail::Kind::Verification, wanted.email});
    return {201, {{"success"_L1, true}, {"data"_L1, QJsonObject{{"userId"_L1, userId}}}}};
}

AccountStore::Answer AccountStore::requestPasswordReset(const QString& email)
{
    if (!accountByEmail(email))
        return refusal(404, u"No account is registered with this email."_s);
    m_mails.append({AccountMail::Kind::PasswordReset, email});
    return {200, {{"success"_L1, true}, {"message"_L1, u"Reset link sent."_s}}};
}

AccountStore::Answer AccountStore::readProfile(const QString& userId, const QString& token) const
{
    const auto index = indexForSession(userId, token);
    if (index < 0)
        return sessionExpired();
    return {200, userObject(m_accounts.at(index))};
}

AccountStore::Answer AccountStore::updateProfile(const QString& userId, const QString& token,
                                                 const QJsonObject& fields)
{
    const auto index = indexForSession(userId, token);
    if (index < 0)
        return sessionExpired();

    Account& account = m_accounts[index];
    account.firstName = fields.value("firstName"_L1).toString(account.firstName);
    account.lastName = fields.value("lastName"_L1).toString(account.lastName);
    account.company = fields.value("company"_L1).toString(account.company);
    account.title = fields.value("title"_L1).toString(account.title);
    account.picture = fields.value("picture"_L1).toString(account.picture);
    return {200, {{"success"_L1, true}, {"data"_L1, editableFields(account)}}};
}

qsizetype AccountStore::indexByEmail(const QString& email) const
{
    const auto found = std::ranges::find_if(m_accounts, [&email](const Account& account) {
        return account.email.compare(email, Qt::CaseInsensitive) == 0;
    });
    return found == m_accounts.cend() ? -1 : std::distance(m_accounts.cbegin(), found);
}

qsizetype AccountStore::indexForSession(const QString& userId, const QString& token) const
{
    if (token.isEmpty() || m_userIdByToken.value(token) != userId)
        return -1;
    const auto found = std::ranges::find(m_accounts, userId, &Account::userId);
    return found == m_accounts.cend() ? -1 : std::distance(m_accounts.cbegin(), found);
}
