#pragma once

#include <QString>

#include <cstddef>
#include <memory>

namespace simulator
{

/// The writing end of a named shared memory and the event that announces its frames. Both are made
/// new, and their names go with the object.
class FrameObjects
{
public:
    virtual ~FrameObjects() = default;
    FrameObjects(const FrameObjects&) = delete;
    FrameObjects& operator=(const FrameObjects&) = delete;

    /// The whole memory, zeroed at first.
    virtual uchar* view() = 0;
    virtual void post() = 0;
    /// Cuts the memory short; what is beyond must not be touched any more. False where no system
    /// call can do that.
    virtual bool cutShort(std::size_t size) = 0;

protected:
    FrameObjects() = default;
};

/// Null, with the reason in @p error, when they cannot be made. Names are without a leading slash.
std::unique_ptr<FrameObjects> makeFrameObjects(const QString& mappingName, const QString& eventName,
                                               std::size_t size, QString& error);

} // namespace simulator
