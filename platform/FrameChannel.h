#pragma once

#include <QtGlobal>

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>

namespace platform
{

/// Reading end of a named shared memory that another process fills and announces through a named
/// event. Creates neither object and never writes to the memory.
///
/// One thread calls all operations except interrupt(). The writer is not trusted: it may die,
/// return with new objects, or cut the memory short while it is read.
class FrameChannel
{
public:
    enum class OpenStep { Mapping, View, Event, Done };

    struct OpenResult {
        OpenStep failedAt = OpenStep::Done; ///< Done: the channel is open
        quint32 error = 0;                  ///< GetLastError() or errno of the failed step
    };

    enum class WaitOutcome {
        Signalled, ///< announced at least once since the last wait
        TimedOut,
        Interrupted, ///< by interrupt(), during this wait or since the last one
        Failed,
    };

    struct WaitResult {
        WaitOutcome outcome = WaitOutcome::Failed;
        quint32 error = 0; ///< GetLastError() or errno when it failed
    };

    virtual ~FrameChannel() = default;
    FrameChannel(const FrameChannel&) = delete;
    FrameChannel& operator=(const FrameChannel&) = delete;

    /// Closes what is open, then opens mapping, view and event in this order.
    virtual OpenResult open() = 0;
    virtual bool isOpen() const = 0;
    virtual void close() = 0;

    /// Waits until the writer announces a frame. Announcements made between two waits count as one.
    /// A wait closes the channel when the writer has taken the event away or, as is checked once in
    /// @p patience, has made new objects under the old names; isOpen() then returns false.
    virtual WaitResult wait(std::chrono::milliseconds patience) = 0;

    /// Copies out of the shared memory in one pass. False when the channel is closed, the range is
    /// outside the view, or the writer has cut the memory short; @p target may be partly filled
    /// then.
    virtual bool copyOut(std::size_t offset, void* target, std::size_t length) = 0;

    /// Ends the current wait, or the next one when there is none. Any thread.
    virtual void interrupt() = 0;

protected:
    FrameChannel() = default;
};

/// @param mappingName, eventName  names without a leading slash
/// @param viewSize                bytes of the view; a smaller object cannot be opened
[[nodiscard]] std::unique_ptr<FrameChannel>
makeFrameChannel(std::string mappingName, std::string eventName, std::size_t viewSize);

} // namespace platform
