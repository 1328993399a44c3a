#pragma once

#include <QMap>
#include <QSqlDatabase>
#include <QString>
#include <QVariant>

#include <atomic>

class QThread;

/// Runs statements on one SQLite file, on a connection of the calling thread.
///
/// Qt forbids sharing a connection between threads. The main thread uses Qt's default connection;
/// every other thread gets its own on first use, which is removed when the thread ends.
///
/// Any thread, one call at a time: the caller holds a lock. The constructor and the destructor run
/// on the main thread, while the application object lives.
///
/// Another program may have the file locked. A statement waits for it, on the main thread a second
/// once and then 10 ms until the lock is gone, so that a start is not held up by every statement.
class SqlConnections
{
public:
    struct Result {
        enum class Outcome { Done, NotOpen, Locked, Failed };
        Outcome outcome = Outcome::Done;
        QString sql;
        QString error;
        int code = 0;   ///< SQLite's, without its details
        QVariant value; ///< first column of the first row; invalid when there is none

        [[nodiscard]] bool isDone() const { return outcome == Outcome::Done; }
        [[nodiscard]] bool isLocked() const { return outcome == Outcome::Locked; }
    };

    SqlConnections();
    ~SqlConnections();
    Q_DISABLE_COPY_MOVE(SqlConnections)

    /// Set before the first statement.
    void setPath(const QString& path) { m_path = path; }
    /// Opens the calling thread's connection unless it is open. Failures are logged.
    bool open();
    /// Closes the calling thread's connection.
    void close();
    /// Runs one statement; each entry of `params` is bound to the placeholder ":" + key.
    Result run(const QString& sql, const QMap<QString, QVariant>& params = {});

    [[nodiscard]] bool isOnMainThread() const;

private:
    QString connectionName() const;
    QSqlDatabase connection() const;
    Result runOpen(const QString& sql, const QMap<QString, QVariant>& params);
    void applySetting(const QString& pragma, const char* failure);
    void adaptWait(bool isLocked);

    const quint64 m_id;
    const QThread* const m_mainThread;
    QString m_path;
    bool m_mainWaitsLong = true; // main thread
};
