#pragma once

#include "bench/Measure.h"

#include <QString>

#include <chrono>

/// Microseconds of a clock that is the same in all processes.
qint64 now();

/// The process that writes frames of 3840 x 2160 into the shared memory, each with the time when it
/// was announced in its first eight bytes.
class FrameSource
{
public:
    /// Starts the process and waits until it has made its objects.
    FrameSource(const QString& mappingName, const QString& eventName);

    /// Has frames written. Returns at once.
    void write(int count, std::chrono::microseconds interval);

private:
    bench::Child m_writer;
};
