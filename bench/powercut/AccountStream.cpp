// Makes a history of account changes with the program's own classes, as its main thread and its
// task thread do, and marks in the record of the file changes how far it has come.
//
//     powercut_stream <folder> <seed> <number of changes>

#include "app/LogInit.h"
#include "app/StandardTasks.h"
#include "bench/powercut/AccountHistory.h"
#include "bench/powercut/Place.h"
#include "device/TaskThread.h"
#include "device/UserProfile.h"
#include "launch/MeetingLauncher.h"
#include "persistence/DBManager.h"
#include "persistence/FileInfo.h"
#include "persistence/Keys.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <memory>

#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace
{

class NoMeetings final : public MeetingLauncher
{
public:
    bool startZoom() override { return false; }
    bool startTeams() override { return false; }
    bool openGoogleMeeting() override { return true; }
};

/// Without the recorder, marks go nowhere.
void mark(const char* what, int step)
{
    using Mark = void (*)(const char*);
    static const auto s_mark = reinterpret_cast<Mark>(::dlsym(RTLD_DEFAULT, "powercutMark"));
    if (s_mark)
        s_mark(QByteArray(what).append(' ').append(QByteArray::number(step)).constData());
}

/// Locks the database as another program would.
class FileLock
{
public:
    explicit FileLock(const QString& path)
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"lock"_s);
        db.setDatabaseName(path);
        if (!db.open() || !QSqlQuery(db).exec(u"BEGIN IMMEDIATE"_s))
            qFatal("cannot lock the database");
    }
    ~FileLock()
    {
        QSqlDatabase::database(u"lock"_s).close();
        QSqlDatabase::removeDatabase(u"lock"_s);
    }
    Q_DISABLE_COPY_MOVE(FileLock)
};

class Stream
{
public:
    explicit Stream(const Place& place)
        : m_path(place.database())
        , m_config(place.config())
        , m_store(m_path)
    {
        QObject::connect(&m_profile, &UserProfile::addTask, &m_tasks.queue(), &TaskQueue::addTask);
        TaskQueue::Actions actions = standardTasks(m_config, m_store, m_meetings);
        actions.push_back({u"drained"_s, [this](const QVariantList&, bool) {
                               QMetaObject::invokeMethod(&m_drained, &QEventLoop::quit,
                                                         Qt::QueuedConnection);
                               return TaskQueue::Outcome::Done;
                           }});
        m_profile.restore(m_store);
        m_tasks.start(std::move(actions));
    }

    void make(const AccountHistory::Step& step, int number)
    {
        mark("begin", number);
        emit m_profile.addTask(
            keys::task::SaveRegistry,
            {keys::registry::Path, keys::registry::DisableLocalDevices, number % 2 != 0});
        const auto lock = step.isLocked ? std::make_unique<FileLock>(m_path) : nullptr;
        switch (step.kind) {
        case AccountHistory::Kind::SignIn:
            m_profile.loginSuccess(step.reply);
            break;
        case AccountHistory::Kind::Profile:
            m_profile.requestSuccess(step.reply);
            break;
        case AccountHistory::Kind::SignOut:
            m_profile.setLogin(false);
            mark("done", number); // deleted, or noted, before the call returns
            break;
        }
        emit m_profile.addTask(
            keys::task::SaveConfig,
            {m_config.configPath(), keys::config::RemoteDeviceInterval, number + 1});
        if (!step.isAwaited)
            return;
        emit m_profile.addTask(u"drained"_s, {});
        m_drained.exec();
        mark("done", number);
    }

private:
    const QString m_path;
    FileInfo m_config;
    DBManager m_store;
    NoMeetings m_meetings;
    UserProfile m_profile;
    QEventLoop m_drained;
    TaskThread m_tasks;
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 4)
        return 2;
    const Place place(args[1]);
    place.use();
    InitLog(place.log(), place.oldLogs(), u"stream"_s, 5);
    const AccountHistory history(args[2].toUInt(), args[3].toInt());
    Stream stream(place);
    for (int number = 1; number < history.steps().size(); ++number)
        stream.make(history.steps()[number], number);
    return 0;
}
