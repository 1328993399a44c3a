// frame_writer <mapping> <event>: plays the process that fills the shared memory. Commands, one a
// line:
//   mapping <bytes>   make the memory anew
//   reserve <bytes>   make it of memory that is not there before it is asked for, but for a page
//   event             make the event anew
//   fill <byte>       set every byte of the memory
//   post <count>      announce that often
//   frame <w> <h>     put a frame of that size there, its bytes numbered from 0, and announce it
// Each is answered with "ok". Both names go with the process.

#include "CommandLoop.h"

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <string>

namespace
{

constexpr std::size_t kHeaderSize = 12;

class Writer
{
public:
    Writer(std::string mapping, std::string event)
        : m_mappingName(std::move(mapping))
        , m_eventName(std::move(event))
    {
    }

    ~Writer()
    {
        closeMapping();
        if (m_event)
            CloseHandle(m_event);
    }

    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    bool run(const std::string& command, long number, long second)
    {
        if (command == "mapping")
            return makeMapping(static_cast<std::size_t>(number), SEC_COMMIT);
        if (command == "reserve")
            return makeMapping(static_cast<std::size_t>(number), SEC_RESERVE) &&
                   VirtualAlloc(m_view, 1, MEM_COMMIT, PAGE_READWRITE);
        if (command == "event")
            return makeEvent();
        if (command == "fill")
            return fill(static_cast<char>(number));
        if (command == "post")
            return post(number);
        if (command == "frame")
            return putFrame(number, second) && post(1);
        return false;
    }

private:
    void closeMapping()
    {
        if (m_view)
            UnmapViewOfFile(m_view);
        if (m_mapping)
            CloseHandle(m_mapping);
        m_view = nullptr;
        m_mapping = nullptr;
    }

    bool makeMapping(std::size_t size, DWORD kind)
    {
        closeMapping();
        m_size = size;
        m_mapping = CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE | kind, 0,
                                       static_cast<DWORD>(size), m_mappingName.c_str());
        if (m_mapping)
            m_view = static_cast<char*>(MapViewOfFile(m_mapping, FILE_MAP_WRITE, 0, 0, size));
        return m_view != nullptr;
    }

    bool makeEvent()
    {
        if (m_event)
            CloseHandle(m_event);
        m_event = CreateEventA(nullptr, FALSE, FALSE, m_eventName.c_str());
        return m_event != nullptr;
    }

    bool fill(char byte)
    {
        std::memset(m_view, byte, m_size);
        return true;
    }

    bool post(long count)
    {
        for (; count > 0; --count) {
            if (!SetEvent(m_event))
                return false;
        }
        return true;
    }

    // Layout: the slot's number, then frame number, width, height and length, then luma and chroma.
    bool putFrame(long w, long h)
    {
        const auto length = static_cast<std::int32_t>(w * h * 3 / 2);
        if (1 + kHeaderSize + static_cast<std::size_t>(length) > m_size)
            return false;
        const std::uint32_t number = m_frames++;
        const auto width = static_cast<std::uint16_t>(w);
        const auto height = static_cast<std::uint16_t>(h);
        char* target = m_view;
        *target++ = 0;
        std::memcpy(target, &number, 4);
        std::memcpy(target + 4, &width, 2);
        std::memcpy(target + 6, &height, 2);
        std::memcpy(target + 8, &length, 4);
        for (std::int32_t i = 0; i < length; ++i)
            target[kHeaderSize + static_cast<std::size_t>(i)] = static_cast<char>(i);
        return true;
    }

    const std::string m_mappingName;
    const std::string m_eventName;
    HANDLE m_mapping = nullptr;
    HANDLE m_event = nullptr;
    char* m_view = nullptr;
    std::size_t m_size = 0;
    std::uint32_t m_frames = 0;
};

} // namespace

int main(int argc, char* argv[])
{
    return serveCommands<Writer>(argc, argv);
}
