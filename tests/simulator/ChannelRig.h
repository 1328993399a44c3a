#pragma once

#include <QByteArray>
#include <QList>
#include <QTemporaryDir>

#include <mutex>
#include <string>
#include <utility>

/// How long a test waits for what must happen, on a machine busy with other things; in
/// milliseconds.
inline constexpr int kPatience = 60'000;

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

/// A socket name of the test's own.
class SocketFolder
{
public:
    QString name() const { return m_folder.filePath(QStringLiteral("hub")); }

private:
    QTemporaryDir m_folder;
};
