#include "FakeLauncher.h"
#include "app/StandardTasks.h"
#include "persistence/FileInfo.h"
#include "persistence/UserSettings.h"
#include "platform/Registry.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

class RecordingStore : public UserSettings
{
public:
    QVariant getUserData(const QString&, const QVariant& value) override { return value; }
    Saved saveUserData(const QList<Value>& values, quint64 signIn, OnLock onLock) override
    {
        QStringList change{QString::number(signIn)};
        for (const Value& each : values)
            change += each.key + u'=' + each.value.toString();
        if (onLock == OnLock::Report && locks-- > 0)
            return Saved::Locked;
        writes += change.join(u' ');
        return Saved::Done;
    }
    bool clearUserData() override { return false; }
    quint64 currentSignIn() const override { return 7; }

    QStringList writes;
    int locks = 1; // attempts that find the store locked;
};

} // namespace

class tst_StandardTasks : public QObject
{
    Q_OBJECT

private slots:
    void passTheirArguments();
};

void tst_StandardTasks::passTheirArguments()
{
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    const QString ini = folder.filePath(u"config.ini"_s);
    FileInfo fileInfo(ini);
    FakeLauncher launcher;
    RecordingStore store;
    TaskQueue queue(standardTasks(fileInfo, store, launcher));

    const QString key = u"HKEY_CURRENT_USER\\Software\\VORNAppTest"_s;
    queue.addTask(u"saveRegistry"_s, {key, u"disable_local_dev"_s, true});
    queue.addTask(u"saveConfig"_s, {ini, u"VORNApp/support_launch_teams"_s, false});
    queue.addTask(u"saveDB"_s, {u"email"_s, u"a@b.example"_s});
    queue.addTask(u"saveDB"_s, {u"email"_s, u"c@d.example"_s, quint64(3), true});
    queue.addTask(u"saveDB"_s, {u"title"_s, u"Dr"_s, quint64(3), false});
    // Missing arguments are empty, and a sign-in number that is no number belongs to no sign-in.
    queue.addTask(u"saveRegistry"_s, {});
    queue.addTask(u"saveConfig"_s, {ini});
    queue.addTask(u"saveDB"_s, {u"email"_s, u"x"_s, u"no number"_s});
    queue.addTask(u"launchGoogleMeeting"_s, {});
    queue.addTask(u"launchTeams"_s, {});
    queue.addTask(u"launchZoom"_s, {});
    QTRY_COMPARE(launcher.started, (QStringList{u"google"_s, u"teams"_s, u"zoom"_s}));
    QCOMPARE(platform::readRegistry(key, u"disable_local_dev"_s).toInt(), 1);
    QCOMPARE(
        QSettings(ini, QSettings::IniFormat).value(u"VORNApp/support_launch_teams"_s).toString(),
        u"false"_s);
    QTRY_COMPARE(store.writes, (QStringList{u"7 email=a@b.example"_s,
                                            u"3 email=c@d.example title=Dr"_s, u"0 email=x"_s}));
}

QTEST_GUILESS_MAIN(tst_StandardTasks)
#include "tst_StandardTasks.moc"
