#pragma once

#include <QSharedMemory>
#include <QString>

/// Makes sure that one instance runs: the first one holds a shared-memory segment for as long as it
/// runs, and a later start asks it to come forward. Main thread; works without an application
/// object.
class SingleInstance
{
public:
    enum class Outcome {
        First,       ///< this start is the running instance from now on
        HandedOver,  ///< the running instance was asked to come forward
        Unreachable, ///< there is one, but it did not answer
    };

    SingleInstance(const QString& key, QString serverName);

    /// Becomes the first instance, or reaches the running one. Waits for one that is still
    /// starting, and takes over from one that goes meanwhile.
    Outcome start();
    /// Lets another start become the first instance.
    void release();

private:
    bool claim();
    bool isThereASegment();
    bool handOver() const;

    QSharedMemory m_sharedMemory;
    const QString m_serverName;
    // Why the last claim failed, empty when another instance holds the segment.
    QString m_claimError;
};
