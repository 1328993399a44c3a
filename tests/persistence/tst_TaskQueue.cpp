#include "persistence/TaskQueue.h"

#include "persistence/FileInfo.h"
#include "persistence/StandardTasks.h"
#include "persistence/UserSettings.h"
#include "platform/Registry.h"
#include "tests/persistence/FakeLauncher.h"
#include "tests/persistence/Poster.h"
#include "tests/support/LogCapture.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

class FakeStore : public UserSettings
{
public:
    QVariant getUserData(const QString&, const QVariant& defaultValue) override
    {
        return defaultValue;
    }
    bool saveUserData(const QString& key, const QVariant& value, quint64 signIn) override
    {
        writes.append({key, value, signIn});
        return false;
    }
    bool clearUserData() override { return false; }
    quint64 currentSignIn() const override { return 7; }

    QList<QVariantList> writes;
};

} // namespace

class TestTaskQueue : public QObject
{
    Q_OBJECT

public:
    static void initMain();

private slots:
    void burstRunsOnePerTurn();
    void unknownTaskIsLoggedAndSkipped();
    void taskPostedByATaskWaitsItsTurn();
    void queueIsIdleAgainAfterwards();
    void destructionDiscardsWaitingTasks();
    void runsOnItsThreadInPostingOrder();
    void standardTasksPassTheirArguments();
    void standardTasksTakeTooFewArguments();

private:
    TaskQueue::Action note(const QString& name, std::function<void()> more = {})
    {
        return [this, name, more = std::move(more)](const QVariantList&) {
            m_done += name;
            if (more)
                more();
        };
    }

    QStringList m_done;
};

void TestTaskQueue::initMain()
{
    static QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
}

void TestTaskQueue::burstRunsOnePerTurn()
{
    m_done.clear();
    // Whatever else the loop has to deliver comes between two tasks.
    const auto other = [this] {
        QMetaObject::invokeMethod(
            this, [this] { m_done += u"other"_s; }, Qt::QueuedConnection);
    };
    LogCapture log;
    {
        TaskQueue queue({{u"a"_s, note(u"a"_s, other)},
                         {u"b"_s, note(u"b"_s, other)},
                         {u"c"_s, note(u"c"_s, other)}});
        for (const QString& task : {u"c"_s, u"a"_s, u"b"_s})
            queue.addTask(task, {});
        QCOMPARE(m_done, QStringList{u"c"_s});
        QTRY_COMPARE(m_done.size(), 6);
    }
    QCOMPARE(m_done, (QStringList{u"c"_s, u"other"_s, u"a"_s, u"other"_s, u"b"_s, u"other"_s}));
    QCOMPARE(log.take(),
             (QStringList{u"I TaskQueue::TaskQueue TaskQueue"_s, u"I TaskQueue::processTask c"_s,
                          u"I TaskQueue::processTask a"_s, u"I TaskQueue::processTask b"_s,
                          u"I TaskQueue::~TaskQueue ~TaskQueue"_s}));
}

void TestTaskQueue::unknownTaskIsLoggedAndSkipped()
{
    m_done.clear();
    TaskQueue queue({{u"known"_s, note(u"known"_s)}});
    LogCapture log;
    for (const QString& task : {u"Known"_s, u""_s, u"known "_s, u"known"_s})
        queue.addTask(task, {1, 2});
    QTRY_COMPARE(m_done, QStringList{u"known"_s});
    QCOMPARE(
        log.take(),
        (QStringList{u"I TaskQueue::processTask Known"_s, u"I TaskQueue::processTask "_s,
                     u"I TaskQueue::processTask known "_s, u"I TaskQueue::processTask known"_s}));
}

void TestTaskQueue::taskPostedByATaskWaitsItsTurn()
{
    m_done.clear();
    TaskQueue* post = nullptr;
    TaskQueue queue({{u"outer"_s, note(u"outer"_s,
                                       [this, &post] {
                                           post->addTask(u"inner"_s, {});
                                           m_done += u"outer ends"_s;
                                       })},
                     {u"inner"_s, note(u"inner"_s)},
                     {u"waiting"_s, note(u"waiting"_s)}});
    post = &queue;
    queue.addTask(u"waiting"_s, {});
    queue.addTask(u"outer"_s, {});
    queue.addTask(u"waiting"_s, {});
    QTRY_COMPARE(
        m_done, (QStringList{u"waiting"_s, u"outer"_s, u"outer ends"_s, u"waiting"_s, u"inner"_s}));
}

void TestTaskQueue::queueIsIdleAgainAfterwards()
{
    m_done.clear();
    TaskQueue queue({{u"a"_s, note(u"a"_s)}});
    queue.addTask(u"a"_s, {});
    QCOMPARE(m_done.size(), 1);
    queue.addTask(u"a"_s, {});
    QCOMPARE(m_done.size(), 1);
    QTRY_COMPARE(m_done.size(), 2);
    // The chain ends one turn later; from then on a task starts at once.
    QCoreApplication::processEvents();
    queue.addTask(u"a"_s, {});
    QCOMPARE(m_done.size(), 3);
}

void TestTaskQueue::destructionDiscardsWaitingTasks()
{
    m_done.clear();
    {
        TaskQueue queue({{u"a"_s, note(u"a"_s)}});
        queue.addTask(u"a"_s, {});
        queue.addTask(u"a"_s, {});
    }
    QCoreApplication::processEvents();
    QCOMPARE(m_done.size(), 1);
}

void TestTaskQueue::runsOnItsThreadInPostingOrder()
{
    constexpr int kTasks = 1000;
    QList<int> order;
    QThread* ranOn = nullptr;
    Poster poster({{u"number"_s, [&](const QVariantList& args) {
                        order += args.value(0).toInt();
                        ranOn = QThread::currentThread();
                    }}});
    QSignalSpy drained(&poster, &Poster::drained);
    for (int i = 0; i < kTasks; ++i)
        emit poster.addTask(u"number"_s, {i});
    emit poster.addTask(u"drained"_s, {});
    QVERIFY(drained.wait(30'000));
    QCOMPARE(ranOn, poster.queueThread());
    QCOMPARE(order.size(), kTasks);
    QVERIFY(std::is_sorted(order.cbegin(), order.cend()));
}

void TestTaskQueue::standardTasksPassTheirArguments()
{
    QTemporaryDir dir;
    const QString ini = dir.filePath(u"config.ini"_s);
    FileInfo fileInfo(ini);
    FakeLauncher launcher;
    std::unique_ptr<FakeStore> store;
    const TaskQueue::Actions actions = standardTasks(
        fileInfo, [&]() -> UserSettings& { return *store; }, launcher);
    QStringList names;
    for (const auto& [name, action] : actions)
        names += name;
    QCOMPARE(names, (QStringList{u"saveRegistry"_s, u"saveConfig"_s, u"saveDB"_s, u"launchZoom"_s,
                                 u"launchTeams"_s, u"launchGoogleMeeting"_s}));

    const QString key = u"HKEY_CURRENT_USER\\Software\\VORNAppTest"_s;
    TaskQueue queue(actions);
    store = std::make_unique<FakeStore>();
    queue.addTask(u"saveRegistry"_s, {key, u"disable_local_dev"_s, true});
    queue.addTask(u"saveConfig"_s, {ini, u"VORNApp/support_launch_teams"_s, false});
    queue.addTask(u"saveDB"_s, {u"email"_s, u"a@b.example"_s});
    queue.addTask(u"saveDB"_s, {u"email"_s, u"c@d.example"_s, quint64(3)});
    queue.addTask(u"launchGoogleMeeting"_s, {});
    queue.addTask(u"launchTeams"_s, {});
    queue.addTask(u"launchZoom"_s, {});
    QTRY_COMPARE(launcher.started, (QStringList{u"google"_s, u"teams"_s, u"zoom"_s}));
    QCOMPARE(platform::readRegistry(key, u"disable_local_dev"_s).toInt(), 1);
    QCOMPARE(
        QSettings(ini, QSettings::IniFormat).value(u"VORNApp/support_launch_teams"_s).toString(),
        u"false"_s);
    QCOMPARE(store->writes, (QList<QVariantList>{{u"email"_s, u"a@b.example"_s, quint64(7)},
                                                 {u"email"_s, u"c@d.example"_s, quint64(3)}}));
}

void TestTaskQueue::standardTasksTakeTooFewArguments()
{
    QTemporaryDir dir;
    FileInfo fileInfo(dir.filePath(u"config.ini"_s));
    FakeLauncher launcher;
    FakeStore store;
    TaskQueue queue(standardTasks(
        fileInfo, [&]() -> UserSettings& { return store; }, launcher));
    queue.addTask(u"saveRegistry"_s, {});
    queue.addTask(u"saveConfig"_s, {fileInfo.configPath()});
    queue.addTask(u"saveDB"_s, {});
    queue.addTask(u"saveDB"_s, {u"email"_s, u"x"_s, u"no number"_s});
    QTRY_COMPARE(store.writes.size(), 2);
    QCOMPARE(store.writes[0], (QVariantList{QString(), QVariant(), quint64(7)}));
    // A sign-in number that makes no sense belongs to no sign-in.
    QCOMPARE(store.writes[1].value(2), QVariant(quint64(0)));
}

QTEST_GUILESS_MAIN(TestTaskQueue)
#include "tst_TaskQueue.moc"
