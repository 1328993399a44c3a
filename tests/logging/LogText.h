#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStringList>

/// Creates and reads log files.
namespace LogText
{

inline bool make(const QString& path, const QByteArray& content = {})
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

inline QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Absolute paths of the log files in a folder, in the order of their names.
inline QStringList files(const QString& folder)
{
    QStringList paths;
    for (const auto& info : QDir(folder).entryInfoList(QDir::Files, QDir::Name))
        paths << info.absoluteFilePath();
    paths.sort();
    return paths;
}

/// Text of a log file after its header of three lines.
inline QByteArray body(const QByteArray& text)
{
    qsizetype start = 0;
    for (int line = 0; line < 3; ++line)
        start = text.indexOf('\n', start) + 1;
    return text.mid(start);
}

/// Text of all log files in a folder without their headers.
inline QByteArray allBodies(const QString& folder)
{
    QByteArray text;
    for (const auto& path : files(folder))
        text += body(read(path));
    return text;
}

} // namespace LogText
