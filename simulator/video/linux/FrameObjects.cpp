#include "simulator/video/FrameObjects.h"

#include <string>

#include <fcntl.h>
#include <semaphore.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

class PosixFrameObjects final : public FrameObjects
{
public:
    PosixFrameObjects(const QString& mappingName, const QString& eventName, std::size_t size)
        : m_mappingName('/' + mappingName.toStdString())
        , m_eventName('/' + eventName.toStdString())
        , m_size(size)
    {
    }

    ~PosixFrameObjects() override
    {
        if (m_view != MAP_FAILED)
            ::munmap(m_view, m_size);
        if (m_memory >= 0) {
            ::close(m_memory);
            ::shm_unlink(m_mappingName.c_str());
        }
        if (m_event != SEM_FAILED) {
            ::sem_close(m_event);
            ::sem_unlink(m_eventName.c_str());
        }
    }

    // Objects of these names that a dead writer left behind are replaced, not used again.
    bool make()
    {
        constexpr mode_t OnlyThisUser = 0600;
        ::shm_unlink(m_mappingName.c_str());
        m_memory = ::shm_open(m_mappingName.c_str(), O_RDWR | O_CREAT | O_EXCL, OnlyThisUser);
        if (m_memory < 0 || ::ftruncate(m_memory, static_cast<off_t>(m_size)) != 0)
            return false;
        m_view = ::mmap(nullptr, m_size, PROT_READ | PROT_WRITE, MAP_SHARED, m_memory, 0);
        if (m_view == MAP_FAILED)
            return false;
        ::sem_unlink(m_eventName.c_str());
        m_event = ::sem_open(m_eventName.c_str(), O_CREAT | O_EXCL, OnlyThisUser, 0);
        return m_event != SEM_FAILED;
    }

    uchar* view() override { return static_cast<uchar*>(m_view); }
    void post() override { ::sem_post(m_event); }
    bool cutShort(std::size_t size) override
    {
        return ::ftruncate(m_memory, static_cast<off_t>(size)) == 0;
    }

private:
    const std::string m_mappingName;
    const std::string m_eventName;
    const std::size_t m_size;
    int m_memory = -1;
    void* m_view = MAP_FAILED;
    sem_t* m_event = SEM_FAILED;
};

} // namespace

std::unique_ptr<FrameObjects> simulator::makeFrameObjects(const QString& mappingName,
                                                          const QString& eventName,
                                                          std::size_t size, QString& error)
{
    auto objects = std::make_unique<PosixFrameObjects>(mappingName, eventName, size);
    if (objects->make())
        return objects;
    error = u"the shared memory cannot be made: "_s + qt_error_string();
    return {};
}
