#pragma once

#include "persistence/SqlConnections.h"
#include "persistence/UserSettings.h"

#include <QMap>
#include <QString>
#include <QVariant>

#include <atomic>
#include <mutex>

/// The user's data in the SQLite database userdata.db.
///
/// Any thread, except for the constructor and the destructor, which run on the main thread while
/// the application object lives. Failures are logged and returned, never thrown.
///
/// A sign-out is noted in a file beside the database until its deletion is made. One that fails is
/// made before anything else is read or written, if necessary by the next run.
///
/// A file that is damaged or has another layout is set aside under a name with the time, and a new
/// one is made.
class DBManager : public UserSettings
{
public:
    /// Opens the database file, creating file and table where they are missing.
    explicit DBManager(const QString& path);
    Q_DISABLE_COPY_MOVE(DBManager)

    /// Opens the calling thread's connection unless it is open.
    bool openDatabase();
    /// Runs one statement; each entry of `params` is bound to the placeholder ":" + key.
    bool execQuery(const QString& sql, const QMap<QString, QVariant>& params);

    QVariant getUserData(const QString& key, const QVariant& defaultValue) override;
    /// Stores one value, whichever sign-in it belongs to.
    bool saveUserData(const QString& key, const QVariant& value);
    Saved saveUserData(const QList<Value>& values, quint64 signIn, OnLock onLock) override;
    bool clearUserData() override;
    quint64 currentSignIn() const override { return m_signIn; }

private:
    using Result = SqlConnections::Result;

    void initialize();
    bool isUnusable();
    void setAside();
    Result makeTable();
    [[nodiscard]] QString clearingNote() const;

    Result store(const QList<Value>& values);
    Result clear();
    Result prepare();
    void noteClearing();

    // Guards all of the below: comparing the sign-in and writing are one step, and the connections
    // of two threads never find the file locked by each other.
    std::mutex m_mutex;
    SqlConnections m_connections;
    QString m_dbPath;
    bool m_hasTable = false;
    bool m_clearingIsDue = false;
    std::atomic<quint64> m_signIn{1}; // read without the lock
};
