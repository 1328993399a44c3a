#include "platform/Registry.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSettings>
#include <QStandardPaths>

#include <array>
#include <chrono>
#include <mutex>
#include <optional>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::chrono::milliseconds LockPatience{400}; // quitting waits half a second for a write
constexpr int LockRetryMs = 2;

QString registryFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           "/VORNApp/registry.ini"_L1;
}

QString iniKey(QString keyPath, const QString& name)
{
    return keyPath.replace(u'\\', u'/') + u'/' + name;
}

/// Identifies one version of a file's content.
struct FileState {
    QString path;
    std::array<qint64, 5> marks{};
    bool operator==(const FileState&) const = default;
};

/// Empty if the last write is so recent that a further one could leave the same state.
std::optional<FileState> settledState(const QString& path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return FileState{path, {}};
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    constexpr time_t SettlingSeconds = 2;
    if (now.tv_sec - status.st_mtim.tv_sec < SettlingSeconds)
        return std::nullopt;
    return FileState{path,
                     {qint64(status.st_ino), qint64(status.st_size), status.st_mtim.tv_sec,
                      status.st_mtim.tv_nsec, status.st_ctim.tv_nsec}};
}

/// Cache of the file's values. The program polls two of them every second, and comparing the file's
/// state is cheaper than reading it. Any thread.
class RegistryValues
{
public:
    QVariant value(const QString& key)
    {
        const std::scoped_lock lock(m_mutex);
        const QString path = registryFile();
        const std::optional<FileState> state = settledState(path);
        if (!state || state != m_state) {
            read(path);
            m_state = state;
        }
        return m_values.value(key);
    }

private:
    void read(const QString& path)
    {
        m_values.clear();
        const QSettings settings(path, QSettings::IniFormat);
        const QStringList keys = settings.allKeys(); // parses the file
        for (const QString& key : keys)
            m_values.insert(key, settings.value(key));
        const bool isDamaged = settings.status() == QSettings::FormatError;
        if (isDamaged && !m_isDamaged)
            qWarning("%ls holds lines that cannot be read", qUtf16Printable(path));
        m_isDamaged = isDamaged;
    }

    std::mutex m_mutex; // guards the members below
    QHash<QString, QVariant> m_values;
    std::optional<FileState> m_state;
    bool m_isDamaged = false;
};

/// Excludes the other writers of a folder's files. QSettings has a lock file for this, but
/// QLockFile takes a lock for stale, and removes the next holder's, if the process that held it
/// ends while another one waits; a written value is then lost.
class WriterLock
{
public:
    explicit WriterLock(const QString& folder)
        : m_fd(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        // A holder that the user has suspended must not hold up the program.
        const QDeadlineTimer deadline(LockPatience);
        while (m_fd >= 0 && ::flock(m_fd, LOCK_EX | LOCK_NB) != 0 && !deadline.hasExpired())
            ::poll(nullptr, 0, LockRetryMs);
    }
    ~WriterLock()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Q_DISABLE_COPY_MOVE(WriterLock)

private:
    const int m_fd;
};

} // namespace

namespace platform
{

QVariant readRegistry(const QString& keyPath, const QString& name)
{
    static RegistryValues s_values;
    QVariant value = s_values.value(iniKey(keyPath, name));

    // QSettings splits an unquoted value at its commas, for example the icon reference "a.exe,0".
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(u',');
    return value;
}

bool writeRegistry(const QString& keyPath, const QString& name, const QVariant& value)
{
    const QString path = registryFile();
    const QString folder = QFileInfo(path).path();
    QDir().mkpath(folder);
    const WriterLock lock(folder);
    // sync() merges with the values of other processes.
    QSettings registry(path, QSettings::IniFormat);
    registry.setValue(iniKey(keyPath, name), value);
    registry.sync();
    return registry.status() != QSettings::AccessError; // unreadable lines are no failure to write
}

} // namespace platform
