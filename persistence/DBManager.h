#pragma once

#include "persistence/UserSettings.h"

#include <QMap>
#include <QSqlDatabase>
#include <QString>
#include <QVariant>

#include <atomic>
#include <mutex>

class QSqlQuery;
class QThread;

/// The user's data in the SQLite database userdata.db.
///
/// Any thread may call every operation except the constructor and the destructor, which belong to
/// the main thread and have to run while the application object lives. The main thread works on
/// Qt's default connection; every other thread gets a connection of its own on first use, closed
/// when that thread ends, since Qt forbids sharing one. Failures are logged and returned, never
/// thrown.
///
/// Another program may have the file locked. The main thread waits a second for it, and no more
/// until it has got it once; a write on another thread is tried for three seconds, unless the
/// thread is asked to end. A clearing that fails is noted in a file beside the database and made up
/// for before anything else is read or written, if need be by the next run.
class DBManager : public UserSettings
{
public:
    /// Opens the database file, creating file and table where they are missing.
    explicit DBManager(const QString& path);
    ~DBManager() override;
    Q_DISABLE_COPY_MOVE(DBManager)

    /// Opens the calling thread's connection unless it is open.
    bool openDatabase();
    /// Runs one statement; each entry of `params` is bound to the placeholder ":" + its key.
    bool execQuery(const QString& sql, const QMap<QString, QVariant>& params);

    QVariant getUserData(const QString& key, const QVariant& defaultValue) override;
    /// Stores one value, whichever sign-in it belongs to.
    bool saveUserData(const QString& key, const QVariant& value);
    Saved saveUserData(const QList<Value>& values, quint64 signIn, OnLock onLock) override;
    bool clearUserData() override;
    quint64 currentSignIn() const override { return m_signIn; }

private:
    struct Attempt {
        enum class Outcome { Done, NotOpen, Locked, Failed };
        Outcome outcome = Outcome::Done;
        QString sql;
        QString error;
    };

    void initialize();
    bool open();
    [[nodiscard]] bool isOnMainThread() const;
    QString connectionName() const;
    QSqlDatabase connection() const;
    [[nodiscard]] QString clearingNote() const;

    Attempt attempt(const QString& sql, const QMap<QString, QVariant>& params);
    Attempt attemptOpen(const QString& sql, const QMap<QString, QVariant>& params);
    Attempt run(QSqlQuery& query, const QString& sql, const QMap<QString, QVariant>& params);
    Attempt attemptStore(const QList<Value>& values);
    Attempt attemptInsert(const Value& value);
    Attempt attemptClear();
    Attempt catchUp();
    void adaptPatience(bool isLocked);
    static bool report(const Attempt& attempt);
    void noteClearing();

    const quint64 m_id;
    const QThread* const m_mainThread;
    QString m_dbPath;
    /// One operation at a time: "still the same sign-in?" and the write that follows are one step,
    /// and the connections of two threads never find the file locked by each other.
    std::mutex m_mutex;
    bool m_clearingIsDue = false;
    bool m_isMainPatient = true;
    std::atomic<quint64> m_signIn{1};
};
