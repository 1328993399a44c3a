// frame_writer <mapping> <event>: plays the process that fills the shared memory. Commands, one a
// line:
//   mapping <bytes>   make the memory anew, under the same name
//   event             make the event anew
//   fill <byte>       set every byte of the memory
//   post <count>      announce that often
//   frame <w> <h>     put a frame of that size there, its bytes numbered from 0, and announce it
//   torn <count>      do that again and again with headers that change while they are read
//   resize <bytes>    cut the memory short, or give it back
//   flap <count>      do that again and again, while the reader copies
//   cut-event         take the event's memory away
// Each is answered with "ok". Both names are removed at the end, unless the process is killed.

#include "CommandLoop.h"

#include <cstdint>
#include <cstring>
#include <random>
#include <string>

#include <fcntl.h>
#include <semaphore.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

class Writer
{
public:
    Writer(std::string mapping, std::string event)
        : m_mappingName("/" + std::move(mapping))
        , m_eventName("/" + std::move(event))
    {
    }

    ~Writer()
    {
        ::shm_unlink(m_mappingName.c_str());
        ::sem_unlink(m_eventName.c_str());
    }

    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    bool run(const std::string& command, long number, long second)
    {
        if (command == "mapping")
            return makeMapping(number);
        if (command == "event")
            return makeEvent();
        if (command == "fill")
            return fill(static_cast<char>(number));
        if (command == "post")
            return post(number);
        if (command == "frame")
            return putFrame(number, second) && post(1);
        if (command == "torn")
            return tear(number);
        if (command == "resize")
            return ::ftruncate(m_fd, number) == 0;
        if (command == "flap")
            return flap(number);
        if (command == "cut-event")
            return ::truncate(("/dev/shm/sem." + m_eventName.substr(1)).c_str(), 0) == 0;
        return false;
    }

private:
    bool makeMapping(long size)
    {
        ::shm_unlink(m_mappingName.c_str());
        m_fd = ::shm_open(m_mappingName.c_str(), O_RDWR | O_CREAT | O_EXCL, 0600);
        m_size = size;
        return m_fd >= 0 && ::ftruncate(m_fd, size) == 0;
    }

    bool makeEvent()
    {
        ::sem_unlink(m_eventName.c_str());
        m_event = ::sem_open(m_eventName.c_str(), O_CREAT | O_EXCL, 0600, 0);
        return m_event != SEM_FAILED;
    }

    bool fill(char byte) const
    {
        const std::string bytes(static_cast<std::size_t>(m_size), byte);
        return ::pwrite(m_fd, bytes.data(), bytes.size(), 0) == m_size;
    }

    bool post(long count) const
    {
        if (!m_event)
            return false;
        for (; count > 0; --count) {
            if (::sem_post(m_event) != 0)
                return false;
        }
        return true;
    }

    // Layout: the slot's number, then frame number, width, height and length, then luma and chroma.
    bool putFrame(long w, long h)
    {
        const long size = w * h * 3 / 2;
        std::string bytes(static_cast<std::size_t>(1 + kHeaderSize + size), '\0');
        putHeader(bytes.data() + 1, w, h, size);
        for (long i = 0; i < size; ++i)
            bytes[static_cast<std::size_t>(1 + kHeaderSize + i)] = static_cast<char>(i);
        return ::pwrite(m_fd, bytes.data(), bytes.size(), 0) == static_cast<long>(bytes.size());
    }

    bool tear(long count)
    {
        void* const view = ::mmap(nullptr, static_cast<std::size_t>(m_size), PROT_READ | PROT_WRITE,
                                  MAP_SHARED, m_fd, 0);
        if (view == MAP_FAILED)
            return false;
        auto* const bytes = static_cast<char*>(view);
        std::mt19937 random(4);
        for (; count > 0; --count) {
            putHeader(bytes + 1, 64, 64, 64 * 64 * 3 / 2);
            bytes[0] = 0;
            if (::sem_post(m_event) != 0)
                break;
            for (int i = 0; i < 1 + kHeaderSize; ++i)
                bytes[i] = static_cast<char>(random());
        }
        ::munmap(view, static_cast<std::size_t>(m_size));
        return count == 0;
    }

    void putHeader(char* target, long w, long h, long size)
    {
        const std::uint32_t number = m_frames++;
        const auto width = static_cast<std::uint16_t>(w);
        const auto height = static_cast<std::uint16_t>(h);
        const auto length = static_cast<std::int32_t>(size);
        std::memcpy(target, &number, 4);
        std::memcpy(target + 4, &width, 2);
        std::memcpy(target + 6, &height, 2);
        std::memcpy(target + 8, &length, 4);
    }

    bool flap(long count) const
    {
        for (; count > 0; --count) {
            if (::ftruncate(m_fd, 0) != 0 || ::ftruncate(m_fd, m_size) != 0)
                return false;
        }
        return true;
    }

    static constexpr int kHeaderSize = 12;

    std::string m_mappingName;
    std::string m_eventName;
    std::uint32_t m_frames = 0;
    int m_fd = -1;
    long m_size = 0;
    sem_t* m_event = nullptr;
};

} // namespace

int main(int argc, char* argv[])
{
    return serveCommands<Writer>(argc, argv);
}
