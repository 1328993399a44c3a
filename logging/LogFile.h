#pragma once

#include <QFile>
#include <QPair>
#include <QQueue>
#include <QString>

#include <chrono>
#include <ctime>
#include <mutex>
#include <string_view>

/// Log file that continues in a new file, with a new header, when it reaches a size limit. Records
/// are passed to the system before write() returns, so a crash loses none. Any thread.
///
/// If the folder is not writable or the disk is full, records are dropped, the reason is written to
/// standard error once, and writing is retried after a pause. Other users cannot read the files.
class LogFile
{
public:
    struct Limits {
        qint64 maxBytes;   ///< a file that has reached this size is followed by a new one
        bool stopWhenFull; ///< pause after a failed write instead of trying each record
        /// Bound for all files of this run together; the oldest ones are deleted.
        qint64 maxTotalBytes = qint64{64} << 20;
    };

    /// @param retryInterval  pause after a file could not be created or written
    explicit LogFile(std::chrono::milliseconds retryInterval = std::chrono::seconds(5));

    /// Names the files `base` + "yyyyMMdd-hhmmss.pid" + `extension`. Further files of the same
    /// second get a counter that keeps them in order. Missing folders are created. With an empty
    /// base nothing is written.
    void setDestination(const QString& base, const QString& extension);

    /// @param record  complete lines including their newlines
    /// @param when  time of the record; names the file that the record begins
    /// @return true if the record is in the file
    bool write(std::string_view record, std::time_t when, const Limits& limits) noexcept;

    /// Size of the current file in bytes.
    [[nodiscard]] qint64 size() const;

private:
    bool writeLocked(std::string_view record, std::time_t when, const Limits& limits);
    void closeFull(const Limits& limits);
    bool open(std::time_t when);
    bool openNew(const QString& stem);
    bool append(std::string_view text);
    void pause();
    [[nodiscard]] bool isPaused();
    void reportError();

    const std::chrono::milliseconds m_retryInterval;
    mutable std::mutex m_mutex; // guards the members below
    QString m_base;
    QString m_extension;
    QString m_stem;  // name of the newest file without its counter and extension
    int m_count = 0; // first counter that may be free for this stem
    QFile m_file;
    QString m_error; // of the last failed attempt
    qint64 m_size = 0;
    QQueue<QPair<QString, qint64>> m_fullFiles; // path and size, oldest first
    qint64 m_fullBytes = 0;                     // of all these files
    bool m_paused = false;
    bool m_errorReported = false;
    std::chrono::steady_clock::time_point m_retryAt;
};
