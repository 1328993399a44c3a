#include "persistence/SqlConnections.h"

#include "logging/Log.h"

#include <QHash>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>
#include <QThreadStorage>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto LogFunction = "DBManager::openDatabase";

// How long one statement waits for another program that has the file locked.
constexpr auto MainWait = 1000ms;
constexpr auto MainWaitWhileLocked = 10ms;
constexpr auto ThreadWait = 200ms;

/// The connections of one thread other than the main one, by the id of their SqlConnections. They
/// are removed on that thread when it ends, as Qt requires.
class ThreadConnections
{
public:
    ThreadConnections() = default;
    Q_DISABLE_COPY_MOVE(ThreadConnections)

    ~ThreadConnections()
    {
        for (const QString& name : std::as_const(m_names))
            QSqlDatabase::removeDatabase(name);
    }

    QString nameFor(quint64 id)
    {
        static std::atomic<quint64> s_count{0};
        QString& name = m_names[id];
        if (name.isEmpty())
            name = u"userdata-"_s + QString::number(++s_count);
        return name;
    }

private:
    QHash<quint64, QString> m_names;
};

QThreadStorage<ThreadConnections*> g_threadConnections;

quint64 nextId()
{
    static std::atomic<quint64> s_last{0};
    return ++s_last;
}

int codeOf(const QSqlError& error)
{
    return error.nativeErrorCode().toInt() & 0xff; // the upper bytes carry details
}

} // namespace

SqlConnections::SqlConnections()
    : m_id(nextId())
    , m_mainThread(QThread::currentThread())
{
}

SqlConnections::~SqlConnections()
{
    Q_ASSERT(isOnMainThread());
    QSqlDatabase::removeDatabase(connectionName());
}

bool SqlConnections::isOnMainThread() const
{
    return QThread::currentThread() == m_mainThread;
}

QString SqlConnections::connectionName() const
{
    if (isOnMainThread())
        return QLatin1StringView(QSqlDatabase::defaultConnection);
    if (!g_threadConnections.hasLocalData())
        g_threadConnections.setLocalData(new ThreadConnections);
    return g_threadConnections.localData()->nameFor(m_id);
}

QSqlDatabase SqlConnections::connection() const
{
    const QString name = connectionName();
    return QSqlDatabase::contains(name) ? QSqlDatabase::database(name, false)
                                        : QSqlDatabase::addDatabase(u"QSQLITE"_s, name);
}

bool SqlConnections::open()
{
    QSqlDatabase db = connection();
    if (db.isOpen())
        return true;
    db.setDatabaseName(m_path);
    const auto wait = isOnMainThread() ? MainWait : ThreadWait;
    db.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=%1"_s.arg(wait.count()));
    if (!db.open()) {
        Log::error(LogFunction) << "Database open error:" << db.lastError().text();
        return false;
    }
    applySetting(u"PRAGMA synchronous = FULL"_s, "Failed to set synchronous mode:");
    // FULL alone does not sync the folder after the journal is removed. A loss of power can then
    // bring the journal back, which undoes the change or, after VACUUM, damages the file.
    applySetting(u"PRAGMA synchronous = EXTRA"_s, "Failed to set synchronous mode:");
    // Overwrites what is deleted, so that nothing of an account stays readable in the file.
    applySetting(u"PRAGMA secure_delete = ON"_s, "Failed to set secure delete:");
    return true;
}

void SqlConnections::close()
{
    connection().close();
}

void SqlConnections::applySetting(const QString& pragma, const char* failure)
{
    const Result result = runOpen(pragma, {});
    if (!result.isDone())
        Log::error(LogFunction) << failure << result.error;
}

SqlConnections::Result SqlConnections::run(const QString& sql,
                                           const QMap<QString, QVariant>& params)
{
    if (!open())
        return {Result::Outcome::NotOpen, sql, {}, 0, {}};
    return runOpen(sql, params);
}

SqlConnections::Result SqlConnections::runOpen(const QString& sql,
                                               const QMap<QString, QVariant>& params)
{
    QSqlQuery query(connection());
    bool isDone = query.prepare(sql);
    if (isDone) {
        for (auto it = params.cbegin(); it != params.cend(); ++it)
            query.bindValue(u':' + it.key(), it.value());
        isDone = query.exec();
    }
    constexpr int Busy = 5;
    const int code = isDone ? 0 : codeOf(query.lastError());
    adaptWait(code == Busy);
    if (isDone)
        return {Result::Outcome::Done, sql, {}, 0, query.next() ? query.value(0) : QVariant()};
    const auto outcome = code == Busy ? Result::Outcome::Locked : Result::Outcome::Failed;
    return {outcome, sql, query.lastError().text(), code, {}};
}

/// Shortens the wait of the main thread while the file is locked.
void SqlConnections::adaptWait(bool isLocked)
{
    if (!isOnMainThread() || m_mainWaitsLong == !isLocked)
        return;
    m_mainWaitsLong = !isLocked;
    const auto wait = isLocked ? MainWaitWhileLocked : MainWait;
    QSqlQuery(connection()).exec(u"PRAGMA busy_timeout = %1"_s.arg(wait.count()));
}
