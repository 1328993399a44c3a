#include "platform/Registry.h"

#include <QFile>
#include <QHash>
#include <QSettings>
#include <QStandardPaths>

#include <array>
#include <mutex>
#include <optional>

#include <sys/stat.h>
#include <time.h>

using namespace Qt::StringLiterals;

namespace
{

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
    // sync() merges with the values of other processes, under a lock file.
    QSettings registry(registryFile(), QSettings::IniFormat);
    registry.setValue(iniKey(keyPath, name), value);
    registry.sync();
    return registry.status() != QSettings::AccessError; // unreadable lines are no failure to write
}

} // namespace platform
