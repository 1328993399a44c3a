#include "simulator/account/AccountNames.h"

#include <QMetaEnum>

using namespace simulator;

namespace
{

// "ProfileRead" as "profile-read".
QString hyphenated(const char* key)
{
    QString name;
    for (const QChar letter : QString::fromLatin1(key)) {
        if (letter.isUpper() && !name.isEmpty())
            name += u'-';
        name += letter.toLower();
    }
    return name;
}

template <typename Enum>
QString nameOf(Enum value)
{
    return hyphenated(QMetaEnum::fromType<Enum>().valueToKey(static_cast<int>(value)));
}

} // namespace

QString simulator::endpointName(AccountFault::Endpoint endpoint)
{
    return nameOf(endpoint);
}

QString simulator::faultName(AccountFault::Kind kind)
{
    return nameOf(kind);
}

const QStringList& simulator::endpointNames()
{
    static const QStringList names = [] {
        const auto endpoints = QMetaEnum::fromType<AccountFault::Endpoint>();
        QStringList list;
        for (int i = 0; i < endpoints.keyCount(); ++i)
            list.append(hyphenated(endpoints.key(i)));
        return list;
    }();
    return names;
}

const QList<std::pair<QString, AccountFault::Kind>>& simulator::namedFaults()
{
    static const auto faults = [] {
        const auto kinds = QMetaEnum::fromType<AccountFault::Kind>();
        QList<std::pair<QString, AccountFault::Kind>> list;
        for (int i = 0; i < kinds.keyCount(); ++i) {
            const auto kind = static_cast<AccountFault::Kind>(kinds.value(i));
            if (kind != AccountFault::Kind::Canned) // has to be given its body
                list.append({hyphenated(kinds.key(i)), kind});
        }
        return list;
    }();
    return faults;
}
