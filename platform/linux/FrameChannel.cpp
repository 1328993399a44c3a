#include "platform/FrameChannel.h"

#include "platform/MemoryGuard.h"
#include "platform/StreamCopy.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <mutex>
#include <utility>

#include <fcntl.h>
#include <semaphore.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using platform::FrameChannel;
using std::chrono::steady_clock;

/// Most posts that one wait takes: a writer can set the count to 2^31 - 1, and taking that many
/// takes about 20 s. What is left over ends the next wait.
constexpr int MaximumPostsTaken = 1'000'000;

/// Distinguishes shared-memory objects that had the same name.
struct ObjectId {
    dev_t device = 0;
    ino_t inode = 0;
    bool operator==(const ObjectId&) const = default;
};

/// Does not wait for the writer of a FIFO, as opening one without O_NONBLOCK would.
int openMapping(const std::string& name)
{
    return ::shm_open(name.c_str(), O_RDONLY | O_NONBLOCK, 0);
}

timespec toTimespec(steady_clock::time_point time) // steady_clock is CLOCK_MONOTONIC
{
    const auto sinceStart = time.time_since_epoch();
    const auto seconds = std::chrono::floor<std::chrono::seconds>(sinceStart);
    timespec result{};
    result.tv_sec = seconds.count();
    result.tv_nsec = std::chrono::nanoseconds(sinceStart - seconds).count();
    return result;
}

/// POSIX shared memory and semaphore. Every access is guarded, since the writer can truncate both
/// at any time.
class PosixFrameChannel final : public FrameChannel
{
public:
    PosixFrameChannel(std::string mappingName, std::string eventName, std::size_t viewSize)
        : m_mappingName('/' + std::move(mappingName))
        , m_eventName('/' + std::move(eventName))
        , m_viewSize(viewSize)
    {
        platform::installMemoryGuard();
    }

    ~PosixFrameChannel() override { closeObjects(); }

    OpenResult open() override
    {
        closeObjects();
        const OpenResult result = openObjects();
        if (result.failedAt != OpenStep::Done)
            closeObjects();
        return result;
    }

    [[nodiscard]] bool isOpen() const override { return m_view && m_event; }
    void close() override { closeObjects(); }

    WaitResult wait(std::chrono::milliseconds patience) override
    {
        if (takeInterrupt(0))
            return {WaitOutcome::Interrupted, 0};
        if (!isOpen())
            return {WaitOutcome::Failed, EBADF};

        const int error = waitForPost(toTimespec(steady_clock::now() + patience));
        if (takeInterrupt(error == 0 ? 1 : 0))
            return {WaitOutcome::Interrupted, 0};
        if (error == 0)
            takePendingPosts();
        if ((error != 0 && error != ETIMEDOUT) || isReplacedSince(patience))
            closeObjects();
        if (error == 0)
            return {WaitOutcome::Signalled, 0};
        if (error == ETIMEDOUT)
            return {WaitOutcome::TimedOut, 0};
        return {WaitOutcome::Failed, static_cast<quint32>(error)};
    }

    bool copyOut(std::size_t offset, void* target, std::size_t length) override
    {
        if (!isOpen() || offset > m_viewSize || length > m_viewSize - offset)
            return false;
        const auto* source = static_cast<const std::byte*>(m_view) + offset;
        return platform::guarded([=] { platform::streamCopy(target, source, length); });
    }

    void interrupt() override
    {
        const std::scoped_lock lock(m_mutex);
        m_interrupted = true;
        int result = -1;
        if (m_event && platform::guarded([&] { result = ::sem_post(m_event); }) && result == 0)
            ++m_ownPosts;
    }

private:
    OpenResult openObjects()
    {
        m_lastLook = steady_clock::now();
        const int fd = openMapping(m_mappingName);
        if (fd < 0)
            return {OpenStep::Mapping, static_cast<quint32>(errno)};
        const int viewError = mapView(fd);
        ::close(fd);
        if (viewError != 0)
            return {OpenStep::View, static_cast<quint32>(viewError)};

        sem_t* const event = ::sem_open(m_eventName.c_str(), 0);
        if (event == SEM_FAILED)
            return {OpenStep::Event, static_cast<quint32>(errno)};
        const std::scoped_lock lock(m_mutex);
        m_event = event;
        return {OpenStep::Done, 0};
    }

    // Returns errno or 0. The mapping keeps the object alive, so its inode number is not used
    // again.
    int mapView(int fd)
    {
        struct stat status = {};
        if (::fstat(fd, &status) != 0)
            return errno;
        if (!S_ISREG(status.st_mode))
            return ENODEV; // as mmap() reports for what cannot be mapped
        if (status.st_size < 0 || static_cast<quint64>(status.st_size) < m_viewSize)
            return ENXIO;
        // Populated now, so that the first frame takes no page faults.
        void* const view = ::mmap(nullptr, m_viewSize, PROT_READ, MAP_SHARED | MAP_POPULATE, fd, 0);
        if (view == MAP_FAILED)
            return errno;
        m_view = view;
        m_mappingId = {status.st_dev, status.st_ino};
        return 0;
    }

    void closeObjects()
    {
        if (m_view)
            ::munmap(std::exchange(m_view, nullptr), m_viewSize);
        const std::scoped_lock lock(m_mutex);
        if (!m_event)
            return;
        takeBackOwnPosts(0);
        ::sem_close(std::exchange(m_event, nullptr));
    }

    // Returns errno, or 0 when a post was taken.
    int waitForPost(const timespec& deadline)
    {
        int error = EFAULT; // the semaphore's memory was taken away
        const bool intact = platform::guarded([&] {
            int result = 0;
            do
                result = ::sem_clockwait(m_event, CLOCK_MONOTONIC, &deadline);
            while (result != 0 && errno == EINTR);
            error = result == 0 ? 0 : errno;
        });
        return intact ? error : EFAULT;
    }

    // Makes the semaphore behave like an auto-reset event, which does not count. The count is read
    // once, so that a writer that posts without pause cannot keep the reader here. The writer can
    // set any count, so the loop also ends on an interruption.
    void takePendingPosts()
    {
        const bool intact = platform::guarded([this] {
            int pending = 0;
            ::sem_getvalue(m_event, &pending);
            pending = std::min(pending, MaximumPostsTaken);
            while (pending-- > 0 && !m_interrupted && ::sem_trywait(m_event) == 0) {
            }
        });
        Q_UNUSED(intact) // a lost mapping is reported by the copyOut() that follows
    }

    // True when interrupt() was called. The caller has already taken `taken` posts.
    bool takeInterrupt(int taken)
    {
        const std::scoped_lock lock(m_mutex);
        if (!m_interrupted)
            return false;
        m_interrupted = false;
        takeBackOwnPosts(taken);
        return true;
    }

    // Removes the posts of interrupt(), which a later wait would take for frames. Needs the mutex.
    void takeBackOwnPosts(int taken)
    {
        const int count = std::exchange(m_ownPosts, 0) - taken;
        if (!m_event || count <= 0)
            return;
        const bool intact = platform::guarded([&] {
            for (int i = 0; i < count && ::sem_trywait(m_event) == 0; ++i) {
            }
        });
        Q_UNUSED(intact) // without its memory there is nothing to remove
    }

    // Looks only when the last look was longer ago than the interval.
    bool isReplacedSince(std::chrono::milliseconds interval)
    {
        const auto now = steady_clock::now();
        if (now - m_lastLook < interval)
            return false;
        m_lastLook = now;
        return isReplaced();
    }

    [[nodiscard]] bool isReplaced() const
    {
        const int fd = openMapping(m_mappingName);
        if (fd >= 0) {
            struct stat status = {};
            const bool known = ::fstat(fd, &status) == 0;
            ::close(fd);
            if (known && ObjectId{status.st_dev, status.st_ino} != m_mappingId)
                return true;
        }
        // Opening a semaphore that this process has open returns the same address.
        sem_t* const event = ::sem_open(m_eventName.c_str(), 0);
        if (event == SEM_FAILED)
            return false;
        const bool replaced = event != m_event;
        ::sem_close(event);
        return replaced;
    }

    const std::string m_mappingName;
    const std::string m_eventName;
    const std::size_t m_viewSize;

    // Reading thread only.
    void* m_view = nullptr;
    ObjectId m_mappingId;
    steady_clock::time_point m_lastLook; // at the names, for objects of a new writer

    std::mutex m_mutex;
    // Written by the reading thread under m_mutex; other threads read it under m_mutex.
    sem_t* m_event = nullptr;
    // Written under m_mutex.
    std::atomic_bool m_interrupted = false;
    // Guarded by m_mutex.
    int m_ownPosts = 0; // posts of interrupt() that may still be pending
};

} // namespace

namespace platform
{

std::unique_ptr<FrameChannel> makeFrameChannel(std::string mappingName, std::string eventName,
                                               std::size_t viewSize)
{
    return std::make_unique<PosixFrameChannel>(std::move(mappingName), std::move(eventName),
                                               viewSize);
}

} // namespace platform
