#include "rig/Fakes.h"
#include "support/LogCapture.h"

#include "device/UserProfile.h"
#include "persistence/Keys.h"

#include <QJsonArray>
#include <QSignalSpy>
#include <QTest>

namespace
{

/// Performs the posted saveDB tasks and returns their keys, separated by blanks. A point marks the
/// end of a change.
QString performWrites(const QSignalSpy& tasks, UserSettings& store)
{
    QString written;
    for (const QVariantList& task : tasks) {
        const QVariantList args = task[1].toList();
        if (task[0] != keys::task::SaveUserData)
            continue;
        written += args[0].toString() + (args[3].toBool() ? u' ' : u'.');
        store.saveUserData({{args[0].toString(), args[1]}}, args[2].toULongLong(),
                           UserSettings::OnLock::Fail);
    }
    return written;
}

} // namespace

class tst_UserProfile : public QObject
{
    Q_OBJECT

private slots:
    void aSignInSurvivesARestart();
    void aSignOutClearsTheUserAndDropsLateWrites();
    void valuesWithoutAnOwnerAreCleared();
    void whatAnEarlierVersionStoredIsBounded();
    void aMalformedSignInKeepsTheProfile();
};

void tst_UserProfile::aSignInSurvivesARestart()
{
    MemorySettings store;
    UserProfile profile;
    profile.restore(store);
    QVERIFY(!profile.login());
    QSignalSpy tasks(&profile, &UserProfile::addTask);
    profile.loginSuccess(
        {{u"data"_s, QJsonObject{{u"token"_s, u"T"_s},
                                 {u"user"_s, QJsonObject{{u"userId"_s, u"U"_s},
                                                         {u"email"_s, u"a@b.c"_s},
                                                         {u"firstName"_s, u"Ann"_s},
                                                         {u"lastName"_s, u"Lee"_s},
                                                         {u"company"_s, u"Co"_s},
                                                         {u"title"_s, u"Dr"_s},
                                                         {u"picture"_s, u"UElD"_s}}}}}});
    QCOMPARE(profile.userImage(), u"data:image/png;base64,UElD"_s);
    QVERIFY(tasks.contains(QVariantList{
        u"saveRegistry"_s,
        QVariantList{u"HKEY_CURRENT_USER\\System\\CurrentControlSet\\Control\\VORNApp"_s,
                     u"username"_s, u"a@b.c"_s}}));
    QCOMPARE(performWrites(tasks, store),
             u"picture token userId email firstName lastName company title."_s);
    tasks.clear();
    // An edit without a picture keeps the present one.
    profile.updateSuccess({{u"data"_s, QJsonObject{{u"firstName"_s, u"Eve"_s}}}});
    QCOMPARE(performWrites(tasks, store), u"firstName lastName company title."_s);

    UserProfile restarted;
    restarted.restore(store);
    QVERIFY(restarted.login());
    QCOMPARE(restarted.firstName() + restarted.lastName(), u"Eve"_s);
    QCOMPARE(restarted.email() + restarted.token() + restarted.userId(), u"a@b.cTU"_s);
    QCOMPARE(restarted.rawPicture(), u"UElD"_s);
    QCOMPARE(restarted.userImage(), profile.userImage());
}

void tst_UserProfile::aSignOutClearsTheUserAndDropsLateWrites()
{
    MemorySettings store;
    store.values = {{u"email"_s, u"a@b.c"_s}, {u"userId"_s, u"U"_s}, {u"picture"_s, u"P"_s}};
    UserProfile profile;
    profile.restore(store);
    QSignalSpy tasks(&profile, &UserProfile::addTask);
    profile.requestSuccess({{u"firstName"_s, u"Ann"_s}});
    profile.setLogin(false);
    QCOMPARE(profile.email() + profile.firstName() + profile.rawPicture(), QString());
    QCOMPARE(profile.userImage(), u"qrc:/images/user_84x84.png"_s);
    QCOMPARE(profile.userId(), u"U"_s);

    QVERIFY(!performWrites(tasks, store).isEmpty());
    QVERIFY(store.values.isEmpty());
}

/// As a version that wrote the values one by one left them when it was killed.
void tst_UserProfile::valuesWithoutAnOwnerAreCleared()
{
    const QMap<QString, QVariant> torn[] = {
        {{u"token"_s, u"T"_s}, {u"userId"_s, u"U"_s}, {u"picture"_s, u"P"_s}},
        {{u"firstName"_s, u"Ann"_s}},
    };
    for (const auto& values : torn) {
        MemorySettings store;
        store.values = values;
        UserProfile profile;
        profile.restore(store);
        // Without a token and a user id, nothing is asked of the service.
        QCOMPARE(profile.token() + profile.userId(), QString());
        QCOMPARE(profile.rawPicture() + profile.firstName(), QString());
        QVERIFY(!profile.login() && store.values.isEmpty());
    }
}

void tst_UserProfile::whatAnEarlierVersionStoredIsBounded()
{
    // The head of a picture of 50,000 x 50,000 points.
    const QString picture =
        QString::fromLatin1(QByteArray::fromHex("424d36000000000000003600000028000000"
                                                "50c3000050c3000001002000000000000000"
                                                "0000000000000000000000000000000000000000")
                                .toBase64());
    MemorySettings store;
    store.values = {{u"email"_s, u"a@b.c"_s},
                    {u"firstName"_s, QString(1'000'000, u'a')},
                    {u"title"_s, u"a\nb"_s},
                    {u"picture"_s, picture}};
    UserProfile profile;
    profile.restore(store);
    QCOMPARE(profile.firstName().size(), 256);
    QCOMPARE(profile.title(), u"a b"_s);
    QCOMPARE(profile.userImage(), u"qrc:/images/user_84x84.png"_s);
    QCOMPARE(profile.rawPicture(), picture);
}

void tst_UserProfile::aMalformedSignInKeepsTheProfile()
{
    MemorySettings store;
    UserProfile profile;
    profile.restore(store);
    profile.setFirstName(u"Ann"_s);
    LogCapture log;
    profile.loginSuccess({{u"data"_s, 7}});
    profile.loginSuccess({{u"data"_s, QJsonObject{{u"user"_s, QJsonArray()}}}});
    profile.updateSuccess({});
    QVERIFY(profile.login());
    QCOMPARE(profile.firstName(), u"Ann"_s);
    QCOMPARE(log.take().filter(u"not contains"_s),
             (QStringList{u"E DeviceControl::loginSuccess not contains data"_s,
                          u"E DeviceControl::loginSuccess not contains user"_s,
                          u"E DeviceControl::profileUpdateSuccess not contains data"_s}));
}

QTEST_GUILESS_MAIN(tst_UserProfile)
#include "tst_UserProfile.moc"
