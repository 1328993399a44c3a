#include "framewriter/FrameObjects.h"

#include <cerrno>
#include <climits>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <semaphore.h>
#include <sys/mman.h>
#include <unistd.h>

namespace
{

constexpr mode_t OwnerOnly = 0600;

class PosixFrameObjects final : public FrameObjects
{
public:
    PosixFrameObjects(std::string mappingName, std::string eventName)
        : m_mappingName('/' + std::move(mappingName))
        , m_eventName('/' + std::move(eventName))
    {
    }

    ~PosixFrameObjects() override
    {
        removeMemory();
        removeEvent();
    }

    bool makeMemory(std::size_t size) override
    {
        removeMemory();
        m_memory = ::shm_open(m_mappingName.c_str(), O_RDWR | O_CREAT | O_EXCL, OwnerOnly);
        if (m_memory < 0 || ::ftruncate(m_memory, static_cast<off_t>(size)) != 0)
            return false;
        void* const view = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, m_memory, 0);
        if (view == MAP_FAILED)
            return false;
        m_view = view;
        m_size = size;
        return true;
    }

    bool makeEvent() override
    {
        removeEvent();
        m_event = ::sem_open(m_eventName.c_str(), O_CREAT | O_EXCL, OwnerOnly, 0);
        return m_event != SEM_FAILED;
    }

    uchar* view() override { return static_cast<uchar*>(m_view); }
    [[nodiscard]] std::size_t size() const override { return m_size; }
    bool post() override { return ::sem_post(m_event) == 0; }

    bool reserveMemory(std::size_t) override { return unsupported(); }

    bool resize(std::size_t size) override
    {
        return ::ftruncate(m_memory, static_cast<off_t>(size)) == 0;
    }

    bool cutEvent() override
    {
        const std::string file = "/dev/shm/sem." + m_eventName.substr(1);
        return ::truncate(file.c_str(), 0) == 0;
    }

    bool overfillEvent() override
    {
        constexpr unsigned Maximum = SEM_VALUE_MAX;
        std::memcpy(m_event, &Maximum, sizeof Maximum); // glibc's semaphores begin with the count
        return true;
    }

private:
    static bool unsupported()
    {
        errno = ENOTSUP;
        return false;
    }

    void removeMemory()
    {
        if (m_view)
            ::munmap(std::exchange(m_view, nullptr), std::exchange(m_size, 0));
        if (m_memory >= 0)
            ::close(std::exchange(m_memory, -1));
        ::shm_unlink(m_mappingName.c_str());
    }

    void removeEvent()
    {
        if (m_event != SEM_FAILED)
            ::sem_close(std::exchange(m_event, SEM_FAILED));
        ::sem_unlink(m_eventName.c_str());
    }

    const std::string m_mappingName;
    const std::string m_eventName;
    int m_memory = -1;
    void* m_view = nullptr;
    std::size_t m_size = 0;
    sem_t* m_event = SEM_FAILED;
};

} // namespace

std::unique_ptr<FrameObjects> makeFrameObjects(std::string mappingName, std::string eventName)
{
    return std::make_unique<PosixFrameObjects>(std::move(mappingName), std::move(eventName));
}
