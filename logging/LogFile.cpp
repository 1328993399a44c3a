#include "logging/LogFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSysInfo>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

QByteArray header(const QDateTime& when)
{
    const auto host = QSysInfo::machineHostName();
    // The first line ends in a blank. The third one is fixed, although records carry the full name
    // of the severity.
    return ("Log file created at: "_L1 + when.toString(u"yyyy-MM-dd hh:mm:ss ") +
            "\nRunning on machine: "_L1 + (host.isEmpty() ? u"(unknown)"_s : host) +
            "\nLog line format: [IWEF] [mm-dd hh:mm:ss.uuuuuu] [thread_id] [class::function] msg\n"_L1)
        .toUtf8();
}

} // namespace

LogFile::LogFile(std::chrono::milliseconds retryInterval)
    : m_retryInterval(retryInterval)
{
}

void LogFile::setDestination(const QString& base, const QString& extension)
{
    const std::scoped_lock lock(m_mutex);
    m_file.close();
    m_fullFiles.clear();
    m_fullBytes = 0;
    m_base = base;
    m_extension = extension;
    m_paused = false;
    m_errorReported = false;
}

bool LogFile::write(std::string_view record, std::time_t when, const Limits& limits) noexcept
{
    try {
        const std::scoped_lock lock(m_mutex);
        return writeLocked(record, when, limits);
    } catch (...) {
        return false;
    }
}

qint64 LogFile::size() const
{
    const std::scoped_lock lock(m_mutex);
    return m_file.isOpen() ? m_size : 0;
}

bool LogFile::writeLocked(std::string_view record, std::time_t when, const Limits& limits)
{
    if (m_base.isEmpty() || isPaused())
        return false;
    if (m_file.isOpen() && m_size >= limits.maxBytes)
        closeFull(limits);
    if (!m_file.isOpen() && !open(when)) {
        reportError();
        pause();
        return false;
    }
    if (!append(record)) {
        reportError();
        if (limits.stopWhenFull)
            pause();
        return false;
    }
    m_errorReported = false;
    return true;
}

void LogFile::closeFull(const Limits& limits)
{
    m_file.close();
    m_fullFiles.enqueue({m_file.fileName(), m_size});
    m_fullBytes += m_size;
    // The next file may grow to its own limit.
    while (!m_fullFiles.isEmpty() && m_fullBytes + limits.maxBytes > limits.maxTotalBytes) {
        const auto [path, size] = m_fullFiles.dequeue();
        QFile::remove(path);
        m_fullBytes -= size;
    }
}

bool LogFile::open(std::time_t when)
{
    const auto time = QDateTime::fromSecsSinceEpoch(when);
    QDir().mkpath(QFileInfo(m_base).path());
    const auto stem = m_base + time.toString(u"yyyyMMdd-hhmmss.") +
                      QString::number(QCoreApplication::applicationPid());
    if (!openNew(stem))
        return false;
    m_size = 0;
    const auto lines = header(time);
    if (append({lines.constData(), static_cast<std::size_t>(lines.size())}))
        return true;
    m_file.remove();
    return false;
}

bool LogFile::openNew(const QString& stem)
{
    constexpr int NamesPerSecond = 1000;
    if (std::exchange(m_stem, stem) != stem)
        m_count = 0;
    // Continues after names whose files may be deleted by now.
    for (; m_count < NamesPerSecond; ++m_count) {
        // '_' sorts after the '.' of the extension, so the first file of a second remains the
        // first.
        const auto suffix = m_count == 0 ? QString() : u"_%1"_s.arg(m_count, 3, 10, '0'_L1);
        m_file.setFileName(stem + suffix + m_extension);
        // The log contains user input and the account's token.
        if (m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
                        QFile::ReadOwner | QFile::WriteOwner)) {
            ++m_count;
            return true;
        }
        m_error = m_file.errorString();
        if (!m_file.exists())
            return false;
    }
    return false;
}

bool LogFile::append(std::string_view text)
{
    const auto length = static_cast<qint64>(text.size());
    if (m_file.write(text.data(), length) == length) {
        m_size += length;
        return true;
    }
    m_error = m_file.errorString();
    // Remove what a full disk still accepted; otherwise the next record would start inside a line.
    m_file.resize(m_size);
    m_file.seek(m_size);
    return false;
}

void LogFile::pause()
{
    m_paused = true;
    m_retryAt = std::chrono::steady_clock::now() + m_retryInterval;
}

bool LogFile::isPaused()
{
    if (m_paused && std::chrono::steady_clock::now() >= m_retryAt)
        m_paused = false;
    return m_paused;
}

void LogFile::reportError()
{
    if (std::exchange(m_errorReported, true))
        return;
    std::fprintf(stderr, "Cannot write the log file %s: %s\n", qUtf8Printable(m_file.fileName()),
                 qUtf8Printable(m_error));
}
