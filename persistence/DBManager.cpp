#include "persistence/DBManager.h"

#include "logging/Log.h"
#include "platform/FileSync.h"

#include <QDateTime>
#include <QFile>

using namespace Qt::StringLiterals;

namespace
{

bool report(const SqlConnections::Result& result)
{
    if (result.isDone())
        return true;
    auto message = Log::error("DBManager::execQuery");
    if (result.outcome == SqlConnections::Result::Outcome::NotOpen)
        message << "Database not open";
    else
        message << "Query failed:" << result.error << " - Query:" << result.sql;
    return false;
}

} // namespace

DBManager::DBManager(const QString& path)
{
    if (!QSqlDatabase::isDriverAvailable(u"QSQLITE"_s)) {
        Log::error("DBManager::DBManager") << "SQLite driver not available!";
        return;
    }
    m_dbPath = path;
    m_connections.setPath(path);
    Log::info("DBManager::DBManager") << "m_dbPath:" << m_dbPath;
    initialize();
}

void DBManager::initialize()
{
    const std::scoped_lock lock(m_mutex);
    m_clearingIsDue = QFile::exists(clearingNote());
    if (m_connections.open() && isUnusable())
        setAside();
    if (!m_connections.open())
        Log::error("DBManager::initialize") << "Failed to open database";
    else // The file holds the token of the account.
        QFile::setPermissions(m_dbPath, QFile::ReadOwner | QFile::WriteOwner);
    if (!report(makeTable()))
        Log::error("DBManager::initialize") << "Failed to create tables";
}

/// Whether the file is damaged, no database, or one of another layout.
bool DBManager::isUnusable()
{
    constexpr int OtherLayout = 1;
    constexpr int Damaged = 11;
    constexpr int NoDatabase = 26;
    const Result check = m_connections.run(u"PRAGMA quick_check(1)"_s);
    if (check.isDone() && check.value.toString() != "ok"_L1)
        return true;
    const int code = check.isDone() && makeTable().isDone()
                         ? m_connections.run(u"SELECT key, value FROM user_settings LIMIT 0"_s).code
                         : check.code;
    return code == OtherLayout || code == Damaged || code == NoDatabase;
}

void DBManager::setAside()
{
    m_connections.close();
    m_hasTable = false;
    const QString aside =
        m_dbPath + QDateTime::currentDateTime().toString(u"'-unusable-'yyyyMMdd-HHmmss-zzz"_s);
    if (QFile::rename(m_dbPath, aside))
        Log::error("DBManager::initialize") << "unusable database moved to " << aside;
    else
        Log::error("DBManager::initialize") << "cannot move the unusable database to " << aside;
    QFile::remove(m_dbPath + "-journal"_L1); // belongs to the old file
}

/// Makes the table unless it is there. It may be missing because the file was locked at the start.
DBManager::Result DBManager::makeTable()
{
    if (m_hasTable)
        return {};
    Result result = m_connections.run(u"CREATE TABLE IF NOT EXISTS user_settings "
                                      "(key TEXT PRIMARY KEY NOT NULL, value BLOB)"_s);
    m_hasTable = result.isDone();
    return result;
}

bool DBManager::openDatabase()
{
    const std::scoped_lock lock(m_mutex);
    return m_connections.open();
}

bool DBManager::execQuery(const QString& sql, const QMap<QString, QVariant>& params)
{
    const std::scoped_lock lock(m_mutex);
    return report(m_connections.run(sql, params));
}

QVariant DBManager::getUserData(const QString& key, const QVariant& defaultValue)
{
    constexpr auto Function = "DBManager::getUserData";
    Log::info(Function) << "key:" << key;
    const std::scoped_lock lock(m_mutex);
    if (!m_connections.open()) {
        Log::error(Function) << "Database not open";
        return defaultValue;
    }
    if (!report(prepare()))
        return defaultValue;
    const Result result =
        m_connections.run(u"SELECT value FROM user_settings WHERE key = :key"_s, {{u"key"_s, key}});
    if (!result.isDone())
        Log::error(Function) << "Query failed:" << result.error;
    return result.value.isValid() ? result.value : defaultValue;
}

bool DBManager::saveUserData(const QString& key, const QVariant& value)
{
    const std::scoped_lock lock(m_mutex);
    return report(store({{key, value}}));
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
    const Result result = store(values);
    if (result.isLocked() && onLock == OnLock::Report)
        return Saved::Locked;
    return report(result) ? Saved::Done : Saved::Failed;
}

bool DBManager::clearUserData()
{
    const std::scoped_lock lock(m_mutex);
    ++m_signIn;
    m_clearingIsDue = true;
    noteClearing(); // first, so that an end in between does not bring the account back
    return report(clear());
}

/// Stores all of the values or none.
DBManager::Result DBManager::store(const QList<Value>& values)
{
    Result result = prepare();
    if (result.isDone())
        result = m_connections.run(u"BEGIN IMMEDIATE"_s);
    if (!result.isDone())
        return result;
    for (const Value& value : values) {
        if (result.isDone())
            result = m_connections.run(
                u"INSERT OR REPLACE INTO user_settings (key, value) VALUES (:key, :value)"_s,
                {{u"key"_s, value.key}, {u"value"_s, value.value}});
    }
    if (result.isDone())
        result = m_connections.run(u"COMMIT"_s);
    if (!result.isDone())
        m_connections.run(u"ROLLBACK"_s);
    return result;
}

/// Makes up for a deletion that failed and for a table that could not be made at the start. Done
/// unless old data is still there.
DBManager::Result DBManager::prepare()
{
    if (!m_clearingIsDue)
        return makeTable();
    Result result = clear();
    if (m_clearingIsDue)
        return result;
    report(result);
    return {};
}

DBManager::Result DBManager::clear()
{
    Result result = makeTable();
    if (result.isDone())
        result = m_connections.run(u"DELETE FROM user_settings"_s);
    if (!result.isDone())
        return result;
    m_clearingIsDue = false;
    QFile::remove(clearingNote());
    return m_connections.run(u"VACUUM"_s);
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
    if (!note.open(QIODevice::WriteOnly)) {
        Log::error("DBManager::clearUserData") << "Cannot note the sign-out:" << note.errorString();
        return;
    }
    note.close();
    if (!platform::syncFile(note.fileName()))
        Log::error("DBManager::clearUserData") << "Cannot write the note through to the disk";
}
