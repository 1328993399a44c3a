#include "bench/powercut/AccountHistory.h"

#include "persistence/Keys.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace
{

constexpr int Users = 5;
constexpr int LargestPicture = 60'000;

/// A picture that differs from those of other users and steps, as Base64. A valid image is not
/// needed: the program keeps what it cannot show.
QString picture(int user, int step, QRandomGenerator& random)
{
    const QByteArray unit =
        "user " + QByteArray::number(user) + " step " + QByteArray::number(step);
    return QString::fromLatin1(unit.repeated(1 + random.bounded(LargestPicture) / 20).toBase64());
}

QMap<QString, QString> names(int user, int step)
{
    QMap<QString, QString> values;
    for (const auto key :
         {keys::user::FirstName, keys::user::LastName, keys::user::Company, keys::user::Title})
        values[key] = u"%1 of user %2 since step %3"_s.arg(key).arg(user).arg(step);
    return values;
}

QJsonObject toJson(const QMap<QString, QString>& values)
{
    QJsonObject object;
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        object[it.key()] = it.value();
    return object;
}

AccountHistory::Step signIn(int step, int user, QRandomGenerator& random)
{
    QMap<QString, QString> values = names(user, step);
    values[keys::user::UserId] = u"id-%1"_s.arg(user);
    values[keys::user::Email] = u"user%1@example.test"_s.arg(user);
    if (random.bounded(3) > 0)
        values[keys::user::Picture] = picture(user, step, random);
    QJsonObject data{{u"user"_s, toJson(values)}};
    values[keys::user::Token] = u"token-%1-%2"_s.arg(user).arg(step);
    data[keys::user::Token] = values[keys::user::Token];
    return {AccountHistory::Kind::SignIn, {{u"data"_s, data}}, true, false, values};
}

AccountHistory::Step profile(int step, int user, QMap<QString, QString> values,
                             QRandomGenerator& random)
{
    QMap<QString, QString> changed = names(user, step);
    if (random.bounded(2) > 0)
        changed[keys::user::Picture] = picture(user, step, random);
    values.insert(changed);
    return {AccountHistory::Kind::Profile, toJson(changed), true, false, values};
}

} // namespace

AccountHistory::AccountHistory(quint32 seed, int stepCount)
    : m_steps{Step()}
{
    QRandomGenerator random(seed);
    int user = 0;
    for (int step = 1; step <= stepCount; ++step) {
        const QMap<QString, QString>& before = m_steps.last().stored;
        if (before.isEmpty()) {
            user = (user + 1 + random.bounded(Users - 1)) % Users;
            m_steps += signIn(step, user, random);
        } else if (random.bounded(2) > 0) {
            m_steps += profile(step, user, before, random);
        } else {
            m_steps += Step();
            m_steps.last().isLocked = random.bounded(4) == 0;
        }
        m_steps.last().isAwaited = m_steps.last().isLocked || random.bounded(2) > 0;
    }
}
