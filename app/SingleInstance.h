#pragma once

#include <QSharedMemory>
#include <QString>

/// Ensures that only one instance runs. The first instance holds a shared-memory segment while it
/// runs; a later start asks it to show its window. Main thread; needs no application object.
class SingleInstance
{
public:
    enum class Outcome {
        First,       ///< this start is the running instance
        HandedOver,  ///< the running instance was asked to show its window
        Unreachable, ///< the running instance did not answer
    };

    SingleInstance(const QString& key, QString serverName);

    /// Becomes the first instance or contacts the running one. Waits for an instance that is still
    /// starting, and becomes the first one if it ends meanwhile.
    Outcome start();
    /// Releases the segment, so that another start can become the first instance.
    void release();

private:
    bool claim();
    bool segmentExists();
    bool handOver() const;

    QSharedMemory m_sharedMemory;
    const QString m_serverName;
    QString m_claimError; // reason of a failed claim; empty if another instance holds the segment
};
