#pragma once

#include <QByteArray>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QTemporaryDir>

#include <mutex>
#include <sstream>
#include <string>
#include <utility>

/// Maximum time, in milliseconds, that a test waits for an event on a busy machine.
inline constexpr int Patience = 60'000;

/// The messages that a channel callback received. May be used from any thread.
class Inbox
{
public:
    using Entry = std::pair<int, QByteArray>;

    int add(int id, const std::string& text)
    {
        const std::scoped_lock lock(m_mutex);
        m_entries.append({id, QByteArray::fromStdString(text)});
        return 0;
    }

    QList<Entry> entries() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_entries;
    }

    qsizetype count() const { return entries().size(); }

    /// A callback for the channel. The inbox must outlive it.
    auto callback()
    {
        return [this](int id, const std::string& text) { return add(id, text); };
    }

private:
    mutable std::mutex m_mutex;
    QList<Entry> m_entries; // guarded by m_mutex
};

/// The events of this name that a simulator wrote, in order.
inline QList<QJsonObject> eventsNamed(const QString& name, const std::ostringstream& written)
{
    QList<QJsonObject> found;
    const QByteArrayList lines = QByteArray::fromStdString(written.str()).split('\n');
    for (const QByteArray& line : lines) {
        const QJsonObject event = QJsonDocument::fromJson(line).object();
        if (event.value(QLatin1String("event")) == name)
            found.append(event);
    }
    return found;
}

/// Writes a scenario file. Returns its path, or an empty text on failure.
inline QString writeScenario(const QTemporaryDir& folder, const QByteArray& content)
{
    QFile file(folder.filePath(QStringLiteral("story")));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    return isWritten ? file.fileName() : QString();
}

/// Provides a socket name in a temporary folder.
class SocketFolder
{
public:
    QString name() const { return m_folder.filePath(QStringLiteral("hub")); }

private:
    QTemporaryDir m_folder;
};
