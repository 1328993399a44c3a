#include "platform/InstanceSegment.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr int HandOverPatienceMs = 10'000; // the first instance does not listen at once
constexpr int LockRetryMs = 5;

bool lockWithin(int fd, int patienceMs)
{
    const QDeadlineTimer deadline(patienceMs);
    while (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || deadline.hasExpired())
            return false;
        ::poll(nullptr, 0, LockRetryMs);
    }
    return true;
}

} // namespace

namespace platform
{

class InstanceLock::Private
{
public:
    int fd = -1;
    bool held = false;
};

InstanceLock::InstanceLock(const QString& key, int patienceMs)
    : d(std::make_unique<Private>())
{
    // Beside the file that QSharedMemory makes for the key, so that both reach equally far. The
    // file stays: removing it would let two starts lock two different ones.
    const QString path =
        QDir::tempPath() + u'/' + key + u'-' + QString::number(::getuid()) + ".lock"_L1;
    d->fd = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW,
                   0600);
    d->held = d->fd >= 0 && lockWithin(d->fd, patienceMs);
}

InstanceLock::~InstanceLock()
{
    if (d->fd >= 0)
        ::close(d->fd);
}

bool InstanceLock::isHeld() const
{
    return d->held;
}

int handOverPatienceMs()
{
    return HandOverPatienceMs;
}

} // namespace platform
