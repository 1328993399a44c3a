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

/// How long a test waits for what must happen, on a machine busy with other things; in
/// milliseconds.
inline constexpr int Patience = 60'000;

/// Messages that a channel callback received, to be looked at from the test's thread.
class Inbox
{
public:
    using Entry = std::pair<int, QByteArray>;

    int add(int id, const std::string& text)
    {
        const std::lock_guard lock(m_mutex);
        m_entries.append({id, QByteArray::fromStdString(text)});
        return 0;
    }

    QList<Entry> entries() const
    {
        const std::lock_guard lock(m_mutex);
        return m_entries;
    }

    qsizetype count() const
    {
        const std::lock_guard lock(m_mutex);
        return m_entries.size();
    }

    /// A callback for the channel; the inbox must outlive it.
    auto callback()
    {
        return [this](int id, const std::string& text) { return add(id, text); };
    }

private:
    mutable std::mutex m_mutex;
    QList<Entry> m_entries;
};

/// The events of this name that a simulator wrote, in their order.
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

/// Writes a scenario; returns its path, empty when that failed.
inline QString writeScenario(const QTemporaryDir& folder, const QByteArray& content)
{
    QFile file(folder.filePath(QStringLiteral("story")));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    return isWritten ? file.fileName() : QString();
}

/// A socket name of the test's own.
class SocketFolder
{
public:
    QString name() const { return m_folder.filePath(QStringLiteral("hub")); }

private:
    QTemporaryDir m_folder;
};
