#pragma once

#include <QtGlobal>

#include <cstddef>
#include <memory>
#include <string>

/// The writing end of a named shared memory and of the event that announces its frames. Each can be
/// made anew at any time, as by a writer that was restarted; a name that another writer left behind
/// is replaced. On Linux the names are removed on destruction; on Windows they exist as long as any
/// process has the objects open. One thread.
///
/// Operations that return false leave the reason in errno or GetLastError().
class FrameObjects
{
public:
    virtual ~FrameObjects() = default;
    FrameObjects(const FrameObjects&) = delete;
    FrameObjects& operator=(const FrameObjects&) = delete;

    /// Makes the memory, zeroed, in place of an earlier one.
    [[nodiscard]] virtual bool makeMemory(std::size_t size) = 0;
    [[nodiscard]] virtual bool makeEvent() = 0;
    /// The whole memory; null before it is made.
    [[nodiscard]] virtual uchar* view() = 0;
    [[nodiscard]] virtual std::size_t size() const = 0;
    /// Announces a frame.
    virtual bool post() = 0;

    // Faults. Each returns false on a system that has no call for it.

    /// Makes memory of which only the first page can be accessed.
    virtual bool reserveMemory(std::size_t size) = 0;
    /// Changes the length of the memory under its readers. What lies beyond must not be accessed.
    virtual bool resize(std::size_t size) = 0;
    /// Takes the memory of the event away.
    virtual bool cutEvent() = 0;
    /// Sets the count of announced frames to its maximum.
    virtual bool overfillEvent() = 0;

protected:
    FrameObjects() = default;
};

/// Makes nothing yet. Names are without a leading slash.
[[nodiscard]] std::unique_ptr<FrameObjects> makeFrameObjects(std::string mappingName,
                                                             std::string eventName);
