// Opens what a power cut has left with the program's own classes and says what state it is.
//
//     powercut_check <seed> <number of changes>
//
// reads lines "<folder> <last change begun> <last change done>" and answers each with three words,
// one for account, config.ini and registry: current, lost (an earlier whole state), or a fault:
// undone (the state before a sign-out that was done), two-accounts, torn, damaged, stuck (the file
// is whole, but cannot be written any more).

#include "bench/powercut/AccountHistory.h"
#include "bench/powercut/Place.h"
#include "device/UserProfile.h"
#include "persistence/DBManager.h"
#include "persistence/FileInfo.h"
#include "persistence/Keys.h"
#include "platform/Registry.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

namespace
{

using Values = QMap<QString, QString>;

struct Progress {
    int begun = 0;
    int done = 0;
};

Values valuesOf(const UserProfile& profile)
{
    Values values{
        {keys::user::Token, profile.token()},       {keys::user::UserId, profile.userId()},
        {keys::user::Email, profile.email()},       {keys::user::FirstName, profile.firstName()},
        {keys::user::LastName, profile.lastName()}, {keys::user::Company, profile.company()},
        {keys::user::Title, profile.title()},       {keys::user::Picture, profile.rawPicture()},
    };
    values.removeIf([](Values::iterator each) { return each.value().isEmpty(); });
    return values;
}

/// The numbers of the users to whom the values belong.
QSet<QString> usersIn(const Values& values)
{
    static const QRegularExpression s_mark(u"(?:user ?|id-|token-)(\\d)"_s);
    QSet<QString> users;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const bool isPicture = it.key() == keys::user::Picture;
        const QString text =
            isPicture ? QString::fromLatin1(QByteArray::fromBase64(it->first(40).toLatin1()))
                      : it.value();
        users += s_mark.match(text).captured(1);
    }
    return users;
}

class StateCheck
{
public:
    StateCheck(quint32 seed, int stepCount)
        : m_history(seed, stepCount)
    {
    }

    QString account(const Place& place, Progress progress) const
    {
        Values found;
        for (int start = 0; start < 2; ++start) { // the second one finds what the first one found
            DBManager store(place.database());
            UserProfile profile;
            profile.restore(store);
            const Values values = valuesOf(profile);
            if (start > 0 && values != found)
                return u"torn"_s;
            found = values;
        }
        if (!QDir(place.settings()).entryList({u"*-unusable-*"_s}).isEmpty())
            return u"damaged"_s;
        const QString state = nameOf(found, progress);
        DBManager store(place.database());
        const bool isWritable = store.clearUserData() && store.saveUserData(u"a"_s, u"b"_s) &&
                                store.getUserData(u"a"_s, {}).toString() == u"b";
        return isWritable ? state : u"stuck"_s;
    }

    QString config(const Place& place, Progress progress) const
    {
        const FileInfo config(place.config());
        if (config.k4vLowestVer() != u"1.1.1" || config.serverUrl() != u"https://kept.example")
            return u"torn"_s;
        const int step = config.useRemoteDeviceInterval() - 1;
        config.saveConfig(place.config(), keys::config::RemoteDeviceInterval, 77);
        if (FileInfo(place.config()).useRemoteDeviceInterval() != 77)
            return u"stuck"_s;
        return step >= progress.done ? u"current"_s : u"lost"_s;
    }

    QString registry() const
    {
        const auto read = [](QLatin1StringView name) {
            return platform::readRegistry(keys::registry::Path, name).toString();
        };
        static const QRegularExpression s_user(u"^(user\\d@example\\.test)?$"_s);
        if (read(keys::registry::InstalledVersion) != u"1.2.3.4" ||
            !s_user.match(read(keys::registry::UserName)).hasMatch())
            return u"torn"_s;
        platform::writeRegistry(keys::registry::Path, keys::registry::NewVersion, u"5"_s);
        return read(keys::registry::NewVersion) == u"5" ? u"current"_s : u"stuck"_s;
    }

private:
    QString nameOf(const Values& found, Progress progress) const
    {
        const auto& steps = m_history.steps();
        const auto isAmong = [&](int first, int last) {
            for (int step = first; step <= last; ++step) {
                if (steps[step].stored == found)
                    return true;
            }
            return false;
        };
        int signOut = progress.done;
        while (signOut > 0 && steps[signOut].kind != AccountHistory::Kind::SignOut)
            --signOut;
        if (isAmong(progress.done, progress.begun))
            return u"current"_s;
        if (isAmong(signOut, progress.done))
            return u"lost"_s;
        if (isAmong(0, signOut))
            return u"undone"_s;
        return usersIn(found).size() > 1 ? u"two-accounts"_s : u"torn"_s;
    }

    AccountHistory m_history;
};

} // namespace

int main(int argc, char* argv[])
{
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    const QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 3)
        return 2;
    const StateCheck check(args[1].toUInt(), args[2].toInt());
    std::string folder;
    Progress progress;
    while (std::cin >> folder >> progress.begun >> progress.done) {
        const Place place(QString::fromStdString(folder));
        place.use();
        const QStringList words{check.account(place, progress), check.config(place, progress),
                                check.registry()};
        std::cout << words.join(u' ').toStdString() << std::endl;
    }
    return 0;
}
