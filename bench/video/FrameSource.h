#pragma once

#include <QProcess>
#include <QString>

#include <chrono>

/// Microseconds of a clock that all processes of this machine share.
qint64 now();

/// The process that writes frames of 3840 x 2160 into the shared memory, each with the time when it
/// was announced in its first eight bytes.
class FrameSource
{
public:
    /// Starts the process and waits until it has made its objects.
    FrameSource(const QString& mappingName, const QString& eventName);
    ~FrameSource();

    /// Requests frames and returns at once.
    void write(int count, std::chrono::microseconds interval);

private:
    QProcess m_process;
};
