#include "persistence/DBManager.h"

#include "logging/Log.h"

#include <QFile>
#include <QHash>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>
#include <QThreadStorage>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

// How long one statement waits for another program that has the file locked.
constexpr auto kMainPatience = 1000ms;
constexpr auto kMainPatienceWhileLocked = 10ms;
constexpr auto kThreadPatience = 200ms;
// How long a write off the main thread is tried again, letting others at the file in between.

/// The connections that a thread other than the main one has opened, by DBManager; removed by that
/// very thread when it ends, as Qt demands.
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

    QString nameFor(quint64 manager)
    {
        static std::atomic<quint64> s_count{0};
        QString& name = m_names[manager];
        if (name.isEmpty())
            name = u"userdata-"_s + QString::number(++s_count);
        return name;
    }

private:
    QHash<quint64, QString> m_names;
};

QThreadStorage<ThreadConnections*> s_threadConnections;

quint64 nextId()
{
    static std::atomic<quint64> s_last{0};
    return ++s_last;
}

bool isLocked(const QSqlError& error)
{
    constexpr int Busy = 5; // SQLite's number, whose upper bytes may say more
    return (error.nativeErrorCode().toInt() & 0xff) == Busy;
}

} // namespace

DBManager::DBManager(const QString& path)
    : m_id(nextId())
    , m_mainThread(QThread::currentThread())
{
    if (!QSqlDatabase::isDriverAvailable(u"QSQLITE"_s)) {
        Log::error("DBManager::DBManager") << "SQLite driver not available!";
        return;
    }
    m_dbPath = path;
    Log::info("DBManager::DBManager") << "m_dbPath:" << m_dbPath;
    initialize();
}

DBManager::~DBManager()
{
    Q_ASSERT(QThread::currentThread() == m_mainThread);
    QSqlDatabase::removeDatabase(connectionName());
}

void DBManager::initialize()
{
    const std::scoped_lock lock(m_mutex);
    m_clearingIsDue = QFile::exists(clearingNote());
    if (!open())
        Log::error("DBManager::initialize") << "Failed to open database";
    else // The file holds the account's token.
        QFile::setPermissions(m_dbPath, QFile::ReadOwner | QFile::WriteOwner);
    if (!report(attempt(u"CREATE TABLE IF NOT EXISTS user_settings "
                        "(key TEXT PRIMARY KEY NOT NULL, value BLOB)"_s,
                        {})))
        Log::error("DBManager::initialize") << "Failed to create tables";
}

bool DBManager::isOnMainThread() const
{
    return QThread::currentThread() == m_mainThread;
}

QString DBManager::connectionName() const
{
    if (isOnMainThread())
        return QLatin1StringView(QSqlDatabase::defaultConnection);
    if (!s_threadConnections.hasLocalData())
        s_threadConnections.setLocalData(new ThreadConnections);
    return s_threadConnections.localData()->nameFor(m_id);
}

QSqlDatabase DBManager::connection() const
{
    const QString name = connectionName();
    return QSqlDatabase::contains(name) ? QSqlDatabase::database(name, false)
                                        : QSqlDatabase::addDatabase(u"QSQLITE"_s, name);
}

bool DBManager::openDatabase()
{
    const std::scoped_lock lock(m_mutex);
    return open();
}

bool DBManager::open()
{
    constexpr auto Function = "DBManager::openDatabase";
    QSqlDatabase db = connection();
    if (db.isOpen())
        return true;
    db.setDatabaseName(m_dbPath);
    const auto patience = isOnMainThread() ? kMainPatience : kThreadPatience;
    db.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=%1"_s.arg(patience.count()));
    if (!db.open()) {
        Log::error(Function) << "Database open error:" << db.lastError().text();
        return false;
    }
    const Attempt synchronous = attemptOpen(u"PRAGMA synchronous = FULL"_s, {});
    if (synchronous.outcome != Attempt::Outcome::Done)
        Log::error(Function) << "Failed to set synchronous mode:" << synchronous.error;
    // Overwrite what is deleted, so that nothing of an account stays readable in the file.
    const Attempt secureDelete = attemptOpen(u"PRAGMA secure_delete = ON"_s, {});
    if (secureDelete.outcome != Attempt::Outcome::Done)
        Log::error(Function) << "Failed to set secure delete:" << secureDelete.error;
    return true;
}

bool DBManager::execQuery(const QString& sql, const QMap<QString, QVariant>& params)
{
    const std::scoped_lock lock(m_mutex);
    return report(attempt(sql, params));
}

DBManager::Attempt DBManager::attempt(const QString& sql, const QMap<QString, QVariant>& params)
{
    if (!open())
        return {Attempt::Outcome::NotOpen, sql, {}};
    return attemptOpen(sql, params);
}

DBManager::Attempt DBManager::attemptOpen(const QString& sql, const QMap<QString, QVariant>& params)
{
    QSqlQuery query(connection());
    return run(query, sql, params);
}

DBManager::Attempt DBManager::run(QSqlQuery& query, const QString& sql,
                                  const QMap<QString, QVariant>& params)
{
    bool done = query.prepare(sql);
    if (done) {
        for (auto it = params.cbegin(); it != params.cend(); ++it)
            query.bindValue(u':' + it.key(), it.value());
        done = query.exec();
    }
    const bool locked = !done && isLocked(query.lastError());
    adaptPatience(locked);
    if (done)
        return {};
    return {locked ? Attempt::Outcome::Locked : Attempt::Outcome::Failed, sql,
            query.lastError().text()};
}

/// Else every statement of a start would hold up the window for the whole time.
void DBManager::adaptPatience(bool isLocked)
{
    if (!isOnMainThread() || m_isMainPatient == !isLocked)
        return;
    m_isMainPatient = !isLocked;
    const auto patience = isLocked ? kMainPatienceWhileLocked : kMainPatience;
    QSqlQuery(connection()).exec(u"PRAGMA busy_timeout = %1"_s.arg(patience.count()));
}

bool DBManager::report(const Attempt& attempt)
{
    if (attempt.outcome == Attempt::Outcome::Done)
        return true;
    auto message = Log::error("DBManager::execQuery");
    if (attempt.outcome == Attempt::Outcome::NotOpen)
        message << "Database not open";
    else
        message << "Query failed:" << attempt.error << " - Query:" << attempt.sql;
    return false;
}

QVariant DBManager::getUserData(const QString& key, const QVariant& defaultValue)
{
    constexpr auto Function = "DBManager::getUserData";
    Log::info(Function) << "key:" << key;
    const std::scoped_lock lock(m_mutex);
    if (!open()) {
        Log::error(Function) << "Database not open";
        return defaultValue;
    }
    if (!report(catchUp()))
        return defaultValue;
    QSqlQuery query(connection());
    const Attempt reading =
        run(query, u"SELECT value FROM user_settings WHERE key = :key"_s, {{u"key"_s, key}});
    if (reading.outcome != Attempt::Outcome::Done) {
        Log::error(Function) << "Query failed:" << reading.error;
        return defaultValue;
    }
    return query.next() ? query.value(0) : defaultValue;
}

bool DBManager::saveUserData(const QString& key, const QVariant& value)
{
    const std::scoped_lock lock(m_mutex);
    return report(attemptStore({{key, value}}));
}

UserSettings::Saved DBManager::saveUserData(const QList<Value>& values, quint64 signIn,
                                            OnLock onLock)
{
    const std::scoped_lock lock(m_mutex);
    if (signIn != m_signIn) {
        for (const Value& value : values)
            Log::info("DBManager::saveUserData")
                << "signed out meanwhile, dropped key:" << value.key;
        return Saved::Done;
    }
    const Attempt attempt = attemptStore(values);
    if (attempt.outcome == Attempt::Outcome::Locked && onLock == OnLock::Report)
        return Saved::Locked;
    return report(attempt) ? Saved::Done : Saved::Failed;
}

bool DBManager::clearUserData()
{
    const std::scoped_lock lock(m_mutex);
    ++m_signIn;
    m_clearingIsDue = true;
    const Attempt clearing = attemptClear();
    if (m_clearingIsDue)
        noteClearing();
    return report(clearing);
}

DBManager::Attempt DBManager::attemptStore(const QList<Value>& values)
{
    Attempt result = catchUp();
    if (result.outcome == Attempt::Outcome::Done && values.size() == 1)
        return attemptInsert(values.first());
    if (result.outcome == Attempt::Outcome::Done)
        result = attempt(u"BEGIN IMMEDIATE"_s, {});
    if (result.outcome != Attempt::Outcome::Done)
        return result;
    for (const Value& value : values) {
        if (result.outcome == Attempt::Outcome::Done)
            result = attemptInsert(value);
    }
    if (result.outcome == Attempt::Outcome::Done)
        result = attempt(u"COMMIT"_s, {});
    if (result.outcome != Attempt::Outcome::Done)
        (void)attempt(u"ROLLBACK"_s, {}); // the failure is reported already
    return result;
}

DBManager::Attempt DBManager::attemptInsert(const Value& value)
{
    return attempt(u"INSERT OR REPLACE INTO user_settings (key, value) VALUES (:key, :value)"_s,
                   {{u"key"_s, value.key}, {u"value"_s, value.value}});
}

DBManager::Attempt DBManager::catchUp()
{
    if (!m_clearingIsDue)
        return {};
    Attempt clearing = attemptClear();
    if (m_clearingIsDue)
        return clearing;
    report(clearing);
    return {};
}

DBManager::Attempt DBManager::attemptClear()
{
    Attempt deletion = attempt(u"DELETE FROM user_settings"_s, {});
    if (deletion.outcome != Attempt::Outcome::Done)
        return deletion;
    m_clearingIsDue = false;
    QFile::remove(clearingNote());
    return attempt(u"VACUUM"_s, {});
}

QString DBManager::clearingNote() const
{
    return m_dbPath + "-cleared"_L1;
}

void DBManager::noteClearing()
{
    if (m_dbPath.isEmpty())
        return;
    QFile note(clearingNote());
    if (!note.open(QIODevice::WriteOnly))
        Log::error("DBManager::clearUserData") << "Cannot note the sign-out:" << note.errorString();
}
