#pragma once

#include <QFile>
#include <QString>

#include <chrono>
#include <ctime>
#include <mutex>
#include <string_view>

/// The file that the log goes to: a new one, with a header, whenever the current one is large
/// enough. Every record reaches the system before write() returns, so a crash loses none. Any
/// thread.
///
/// A folder that cannot be written, or a full disk, costs records but never more: the reason is
/// told once on standard error, and writing is tried again from time to time. Other users cannot
/// read the files.
class LogFile
{
public:
    struct Limits {
        qint64 maxBytes;   ///< a file that has reached this size is followed by a new one
        bool stopWhenFull; ///< after a failed write, wait a while before the next attempt
    };

    /// @param retryInterval  pause between two attempts at a file that cannot be made or written.
    explicit LogFile(std::chrono::milliseconds retryInterval = std::chrono::seconds(5));

    /// Names the files `base` + "yyyyMMdd-hhmmss.pid" + `extension`; those that begin in the same
    /// second carry a counter that sorts them. Missing folders are made. An empty base writes
    /// nothing.
    void setDestination(const QString& base, const QString& extension);

    /// @param record  whole lines, their newlines included.
    /// @param when  time of the record, for the name and the header of a file that it begins.
    /// @return whether the record is in the file.
    bool write(std::string_view record, std::time_t when, const Limits& limits) noexcept;

    /// Bytes in the current file.
    [[nodiscard]] qint64 size() const;

private:
    bool writeLocked(std::string_view record, std::time_t when, const Limits& limits);
    bool open(std::time_t when);
    bool openNew(const QString& stem);
    bool append(std::string_view text);
    void pause();
    [[nodiscard]] bool isPaused();
    void complain();

    mutable std::mutex m_mutex;
    const std::chrono::milliseconds m_retryInterval;
    QString m_base;
    QString m_extension;
    QFile m_file;
    QString m_error; // why the last attempt failed
    qint64 m_size = 0;
    bool m_paused = false;
    bool m_complained = false;
    std::chrono::steady_clock::time_point m_retryAt;
};
