#include "simulator/video/FrameObjects.h"

#include <qt_windows.h>

#include <utility>

using namespace simulator;
using namespace Qt::StringLiterals;

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

/// The names live as long as anybody has the objects open, so a successor gets the same ones.
class KernelFrameObjects final : public FrameObjects
{
public:
    KernelFrameObjects(const QString& mappingName, const QString& eventName, std::size_t size)
        : m_mapping(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                       static_cast<DWORD>(size), wide(mappingName)))
        , m_view(m_mapping ? MapViewOfFile(m_mapping.get(), FILE_MAP_WRITE, 0, 0, size) : nullptr)
        , m_event(m_view ? CreateEventW(nullptr, FALSE, FALSE, wide(eventName)) : nullptr)
    {
    }

    bool isMade() const { return m_event != nullptr; }
    uchar* view() override { return static_cast<uchar*>(m_view.get()); }
    void post() override { SetEvent(m_event.get()); }
    bool cutShort(std::size_t) override { return false; }

private:
    static const wchar_t* wide(const QString& name)
    {
        return reinterpret_cast<const wchar_t*>(name.utf16());
    }

    UniqueHandle m_mapping;
    UniqueView m_view; // gone before the mapping is
    UniqueHandle m_event;
};

} // namespace

std::unique_ptr<FrameObjects> simulator::makeFrameObjects(const QString& mappingName,
                                                          const QString& eventName,
                                                          std::size_t size, QString& error)
{
    auto objects = std::make_unique<KernelFrameObjects>(mappingName, eventName, size);
    if (objects->isMade())
        return objects;
    error = u"the shared memory cannot be made: "_s + qt_error_string();
    return {};
}
