#include "platform/FrameChannel.h"

#include "platform/MemoryGuard.h"
#include "platform/StreamCopy.h"

#include <qt_windows.h>

#include <array>
#include <utility>

namespace
{

using platform::FrameChannel;

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<void, HandleCloser>;

struct ViewCloser {
    void operator()(const void* view) const { UnmapViewOfFile(view); }
};
using UniqueView = std::unique_ptr<const void, ViewCloser>;

/// Memory that is only reserved can be mapped, but reading it would crash.
bool isCommitted(const void* view, std::size_t size)
{
    const auto* const end = static_cast<const std::byte*>(view) + size;
    for (const auto* at = static_cast<const std::byte*>(view); at < end;) {
        MEMORY_BASIC_INFORMATION pages;
        if (VirtualQuery(at, &pages, sizeof pages) == 0 || pages.State != MEM_COMMIT)
            return false;
        at = static_cast<const std::byte*>(pages.BaseAddress) + pages.RegionSize;
    }
    return true;
}

/// Named file mapping and auto-reset event. Neither can shrink, and a restarted writer opens the
/// same objects as long as this process has them open, so nothing has to be checked between frames.
/// A mapping of a file, however, fails where the file can no longer be read, so copies are guarded.
class KernelFrameChannel final : public FrameChannel
{
public:
    KernelFrameChannel(std::string mappingName, std::string eventName, std::size_t viewSize)
        : m_mappingName(std::move(mappingName))
        , m_eventName(std::move(eventName))
        , m_viewSize(viewSize)
        , m_interrupt(CreateEventW(nullptr, FALSE, FALSE, nullptr))
    {
        platform::installMemoryGuard();
    }

    OpenResult open() override
    {
        close();
        m_mapping.reset(OpenFileMappingA(FILE_MAP_READ, FALSE, m_mappingName.c_str()));
        if (!m_mapping)
            return failed(OpenStep::Mapping);
        m_view.reset(MapViewOfFile(m_mapping.get(), FILE_MAP_READ, 0, 0, m_viewSize));
        if (!m_view)
            return failed(OpenStep::View);
        if (!isCommitted(m_view.get(), m_viewSize)) {
            SetLastError(ERROR_INVALID_ADDRESS);
            return failed(OpenStep::View);
        }
        m_event.reset(OpenEventA(EVENT_ALL_ACCESS, FALSE, m_eventName.c_str()));
        if (!m_event)
            return failed(OpenStep::Event);
        return {};
    }

    [[nodiscard]] bool isOpen() const override { return m_view && m_event; }

    void close() override
    {
        m_view.reset();
        m_mapping.reset();
        m_event.reset();
    }

    WaitResult wait(std::chrono::milliseconds patience) override
    {
        // The interruption comes first: the lower index is reported when both are set.
        const std::array<HANDLE, 2> handles{m_interrupt.get(), m_event.get()};
        const DWORD count = m_event ? 2 : 1;
        const auto time = isOpen() ? static_cast<DWORD>(patience.count()) : 0;
        switch (WaitForMultipleObjects(count, handles.data(), FALSE, time)) {
        case WAIT_OBJECT_0:
            return {WaitOutcome::Interrupted, 0};
        case WAIT_OBJECT_0 + 1:
            return {WaitOutcome::Signalled, 0};
        case WAIT_TIMEOUT:
            if (isOpen())
                return {WaitOutcome::TimedOut, 0};
            return {WaitOutcome::Failed, ERROR_INVALID_HANDLE};
        default:
            return {WaitOutcome::Failed, GetLastError()};
        }
    }

    bool copyOut(std::size_t offset, void* target, std::size_t length) override
    {
        if (!isOpen() || offset > m_viewSize || length > m_viewSize - offset)
            return false;
        const auto* const source = static_cast<const std::byte*>(m_view.get()) + offset;
        return platform::guarded([=] { platform::streamCopy(target, source, length); });
    }

    void interrupt() override { SetEvent(m_interrupt.get()); }

private:
    OpenResult failed(OpenStep step)
    {
        const OpenResult result{step, GetLastError()};
        close();
        return result;
    }

    const std::string m_mappingName;
    const std::string m_eventName;
    const std::size_t m_viewSize;
    const UniqueHandle m_interrupt;
    UniqueHandle m_mapping;
    UniqueView m_view; // unmapped before the mapping is closed
    UniqueHandle m_event;
};

} // namespace

namespace platform
{

std::unique_ptr<FrameChannel> makeFrameChannel(std::string mappingName, std::string eventName,
                                               std::size_t viewSize)
{
    return std::make_unique<KernelFrameChannel>(std::move(mappingName), std::move(eventName),
                                                viewSize);
}

} // namespace platform
