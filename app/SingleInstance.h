#pragma once

#include <QByteArray>
#include <QSharedMemory>
#include <QString>

#include <optional>

/// Ensures that only one instance of a user runs. The first instance holds a shared-memory segment
/// while it runs; a later start asks it to show its window. Main thread; needs no application
/// object.
class SingleInstance
{
public:
    /// Begins the answer to the request to quit; the number of the process follows.
    static constexpr auto QuitAnswer = "quitting ";

    enum class Outcome {
        First,       ///< this start is the running instance
        HandedOver,  ///< the running instance was asked to show its window
        Unreachable, ///< the running instance did not answer
    };

    /// @param name  of the segment
    /// @param serverName  of the local server that the first instance opens
    SingleInstance(QString name, QString serverName);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// Becomes the first instance or contacts the running one. Waits for an instance that is still
    /// starting, and becomes the first one if it ends meanwhile.
    Outcome start();
    /// Asks the running instance to end as the entry "Quit" of its tray icon does, and waits until
    /// its process has ended. True if no instance runs, or none any more.
    [[nodiscard]] bool endRunning();
    /// Releases the segment, so that another start can become the first instance.
    void release();

private:
    enum class Reply {
        Missing,  ///< no server
        Accepted, ///< the instance shows its window, or will when it is less busy
        Closed,   ///< the server closed the connection without an answer, as at its end
    };
    enum class Claim {
        Made,     ///< this start holds the segment
        Held,     ///< another instance holds it
        Answered, ///< nobody holds it, but an instance accepted the request
    };

    Claim claim();
    bool isSegmentHeld();
    bool segmentExists();
    bool createSegment();
    QSharedMemory& newSegment();
    Reply handOver() const;
    Reply ask(const QByteArray& request, QByteArray* answer = nullptr) const;
    bool isFree();
    Outcome succeed();

    const QString m_name;
    const QString m_serverName;
    std::optional<QSharedMemory> m_sharedMemory;
    QString m_claimError; // reason of a failed claim
};
