#include "persistence/DBManager.h"

#include "logging/Log.h"

#include <QFile>
#include <QHash>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>
#include <QThreadStorage>

using namespace Qt::StringLiterals;

namespace
{

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

void setPragma(const QSqlDatabase& db, const QString& pragma, const char* whatFailed)
{
    QSqlQuery query(db);
    if (!query.exec(pragma))
        Log::error("DBManager::openDatabase") << whatFailed << query.lastError().text();
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
    const bool isNew = !QFile::exists(m_dbPath);
    if (!openDatabase())
        Log::error("DBManager::initialize") << "Failed to open database";
    else if (isNew) // The file will hold the account's token.
        QFile::setPermissions(m_dbPath, QFile::ReadOwner | QFile::WriteOwner);
    if (!execQuery(u"CREATE TABLE IF NOT EXISTS user_settings "
                   "(key TEXT PRIMARY KEY NOT NULL, value BLOB)"_s,
                   {}))
        Log::error("DBManager::initialize") << "Failed to create tables";
}

QString DBManager::connectionName() const
{
    if (QThread::currentThread() == m_mainThread)
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
    QSqlDatabase db = connection();
    if (db.isOpen())
        return true;
    db.setDatabaseName(m_dbPath);
    // In milliseconds, for another program that has the file open.
    db.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=3000"_s);
    if (!db.open()) {
        Log::error("DBManager::openDatabase") << "Database open error:" << db.lastError().text();
        return false;
    }
    setPragma(db, u"PRAGMA synchronous = FULL"_s, "Failed to set synchronous mode:");
    // Overwrite what is deleted, so that nothing of an account stays readable in the file.
    setPragma(db, u"PRAGMA secure_delete = ON"_s, "Failed to set secure delete:");
    return true;
}

bool DBManager::execQuery(const QString& sql, const QMap<QString, QVariant>& params)
{
    if (!openDatabase()) {
        Log::error("DBManager::execQuery") << "Database not open";
        return false;
    }
    QSqlQuery query(connection());
    bool done = query.prepare(sql);
    if (done) {
        for (auto it = params.cbegin(); it != params.cend(); ++it)
            query.bindValue(u':' + it.key(), it.value());
        done = query.exec();
    }
    if (!done)
        Log::error("DBManager::execQuery")
            << "Query failed:" << query.lastError().text() << " - Query:" << sql;
    return done;
}

QVariant DBManager::getUserData(const QString& key, const QVariant& defaultValue)
{
    Log::info("DBManager::getUserData") << "key:" << key;
    const std::scoped_lock lock(m_mutex);
    if (!openDatabase()) {
        Log::error("DBManager::getUserData") << "Database not open";
        return defaultValue;
    }
    QSqlQuery query(connection());
    bool done = query.prepare(u"SELECT value FROM user_settings WHERE key = :key"_s);
    if (done) {
        query.bindValue(u":key"_s, key);
        done = query.exec();
    }
    if (!done) {
        Log::error("DBManager::getUserData") << "Query failed:" << query.lastError().text();
        return defaultValue;
    }
    return query.next() ? query.value(0) : defaultValue;
}

bool DBManager::saveUserData(const QString& key, const QVariant& value)
{
    const std::scoped_lock lock(m_mutex);
    return store(key, value);
}

bool DBManager::saveUserData(const QString& key, const QVariant& value, quint64 signIn)
{
    const std::scoped_lock lock(m_mutex);
    if (signIn != m_signIn) {
        Log::info("DBManager::saveUserData") << "signed out meanwhile, dropped key:" << key;
        return true;
    }
    return store(key, value);
}

bool DBManager::clearUserData()
{
    const std::scoped_lock lock(m_mutex);
    ++m_signIn;
    const bool isDeleted = execQuery(u"DELETE FROM user_settings"_s, {});
    const bool isVacuumed = execQuery(u"VACUUM"_s, {});
    return isDeleted && isVacuumed;
}

bool DBManager::store(const QString& key, const QVariant& value)
{
    return execQuery(u"INSERT OR REPLACE INTO user_settings (key, value) VALUES (:key, :value)"_s,
                     {{u"key"_s, key}, {u"value"_s, value}});
}
