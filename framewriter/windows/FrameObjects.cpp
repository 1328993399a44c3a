#include "framewriter/FrameObjects.h"

#include <qt_windows.h>

#include <utility>

namespace
{

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<void, HandleCloser>;

struct ViewCloser {
    void operator()(void* view) const { UnmapViewOfFile(view); }
};
using UniqueView = std::unique_ptr<void, ViewCloser>;

class KernelFrameObjects final : public FrameObjects
{
public:
    KernelFrameObjects(std::string mappingName, std::string eventName)
        : m_mappingName(std::move(mappingName))
        , m_eventName(std::move(eventName))
    {
    }

    bool makeMemory(std::size_t size) override { return mapNew(size, SEC_COMMIT); }

    bool makeEvent() override
    {
        m_event.reset();
        m_event.reset(CreateEventA(nullptr, FALSE, FALSE, m_eventName.c_str()));
        return m_event != nullptr;
    }

    uchar* view() override { return static_cast<uchar*>(m_view.get()); }
    [[nodiscard]] std::size_t size() const override { return m_view ? m_size : 0; }
    bool post() override { return SetEvent(m_event.get()); }

    bool reserveMemory(std::size_t size) override
    {
        return mapNew(size, SEC_RESERVE) &&
               VirtualAlloc(m_view.get(), 1, MEM_COMMIT, PAGE_READWRITE);
    }

    bool resize(std::size_t) override { return unsupported(); }
    bool cutEvent() override { return unsupported(); }
    bool overfillEvent() override { return unsupported(); }

private:
    static bool unsupported()
    {
        SetLastError(ERROR_NOT_SUPPORTED);
        return false;
    }

    bool mapNew(std::size_t size, DWORD kind)
    {
        m_view.reset();
        m_mapping.reset(); // closed first, as memory of the same name would be opened again
        m_mapping.reset(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE | kind, 0,
                                           static_cast<DWORD>(size), m_mappingName.c_str()));
        if (m_mapping)
            m_view.reset(MapViewOfFile(m_mapping.get(), FILE_MAP_WRITE, 0, 0, size));
        m_size = size;
        return m_view != nullptr;
    }

    const std::string m_mappingName;
    const std::string m_eventName;
    UniqueHandle m_mapping;
    UniqueView m_view; // unmapped before the mapping is closed
    std::size_t m_size = 0;
    UniqueHandle m_event;
};

} // namespace

std::unique_ptr<FrameObjects> makeFrameObjects(std::string mappingName, std::string eventName)
{
    return std::make_unique<KernelFrameObjects>(std::move(mappingName), std::move(eventName));
}
