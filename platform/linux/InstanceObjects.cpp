#include "platform/InstanceObjects.h"

#include "platform/Folders.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QSharedMemory>

#include <algorithm>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr int HandOverPatienceMs = 10'000; // the first instance does not listen at once
constexpr int LockRetryMs = 5;
constexpr auto ActivationToken = "XDG_ACTIVATION_TOKEN";
constexpr int LongestToken = 256;
constexpr auto LongestName = "/VORNAppLocalServer"_L1;

/// Folder for systems without a runtime folder.
QString ownFolderIn(const QString& parent)
{
    return u"%1/VORNApp-%2"_s.arg(parent).arg(::geteuid());
}

/// Creates the folder if it is missing. True if the path of a socket in it is not too long, and
/// only this user can create files in it.
bool prepareFolder(const QString& folder)
{
    const QByteArray path = QFile::encodeName(folder);
    if (path.size() + LongestName.size() >= qsizetype(sizeof(sockaddr_un::sun_path)) ||
        !QDir::isAbsolutePath(folder))
        return false;
    ::mkdir(path.constData(), S_IRWXU);
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// Chosen anew in each call, because an instance that ends may just have removed the folder.
QString instanceFolder()
{
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    for (const QString& folder :
         {runtimeFolder, ownFolderIn(QDir::tempPath()), ownFolderIn(u"/tmp"_s)}) {
        if (prepareFolder(folder))
            return folder;
    }
    return platform::programDataFolder(); // another user occupies the names in the shared folders
}

} // namespace

namespace platform
{

void setInstanceKey(QSharedMemory& segment, const QString& name)
{
    segment.setNativeKey(instanceFolder() + u'/' + name);
}

QString instanceServerName(const QString& name)
{
    return instanceFolder() + u'/' + name;
}

void removeInstanceFolder()
{
    for (const QString& parent : {QDir::tempPath(), u"/tmp"_s})
        ::rmdir(QFile::encodeName(ownFolderIn(parent)).constData());
}

class InstanceLock::Private
{
public:
    explicit Private(QString lockName)
        : name(std::move(lockName))
    {
    }

    bool tryLock()
    {
        path = QFile::encodeName(instanceFolder() + u'/' + name + ".lock"_L1);
        fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        struct stat opened = {};
        struct stat current = {};
        // The previous holder removes the file; a lock on the removed file excludes nobody.
        if (fd >= 0 && ::flock(fd, LOCK_EX | LOCK_NB) == 0 && ::fstat(fd, &opened) == 0 &&
            ::stat(path.constData(), &current) == 0 && opened.st_ino == current.st_ino)
            return true;
        if (fd >= 0)
            ::close(std::exchange(fd, -1));
        return false;
    }

    const QString name;
    QByteArray path;
    int fd = -1;
};

InstanceLock::InstanceLock(const QString& name, int patienceMs)
    : m_private(std::make_unique<Private>(name))
{
    const QDeadlineTimer deadline(patienceMs);
    while (!m_private->tryLock() && !deadline.hasExpired())
        ::poll(nullptr, 0, LockRetryMs);
}

InstanceLock::~InstanceLock()
{
    if (m_private->fd < 0)
        return;
    ::unlink(m_private->path.constData());
    ::close(m_private->fd);
}

bool InstanceLock::isHeld() const
{
    return m_private->fd >= 0;
}

int handOverPatienceMs()
{
    return HandOverPatienceMs;
}

QByteArray passOnForegroundRight()
{
    return qgetenv(ActivationToken);
}

/// Qt takes the token from the environment and removes it there.
void takeForegroundRight(const QByteArray& right)
{
    const auto isPlain = [](char c) { return c > ' ' && c < 0x7f; };
    if (!right.isEmpty() && right.size() <= LongestToken && std::ranges::all_of(right, isPlain))
        qputenv(ActivationToken, right);
}

} // namespace platform
