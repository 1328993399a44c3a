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
    bool saveUserData(const QString&, const QVariant&, quint64) override { return false; }
    Saved trySaveUserData(const QString& key, const QVariant& value, quint64 signIn) override
    {
        writes.append({key, value, signIn});
        return Saved::Failed;
    }
    bool clearUserData() override { return false; }
    quint64 currentSignIn() const override { return 7; }

    QList<QVariantList> writes;
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
    queue.addTask(u"saveDB"_s, {u"email"_s, u"c@d.example"_s, quint64(3)});
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
    QCOMPARE(store.writes, (QList<QVariantList>{{u"email"_s, u"a@b.example"_s, quint64(7)},
                                                {u"email"_s, u"c@d.example"_s, quint64(3)},
                                                {u"email"_s, u"x"_s, quint64(0)}}));
}

QTEST_GUILESS_MAIN(tst_StandardTasks)
#include "tst_StandardTasks.moc"
