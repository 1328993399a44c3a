#include "platform/FileSync.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace
{

bool sync(const QString& path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    // EINVAL: this file system has nothing to write through.
    const bool isSynced = ::fsync(fd) == 0 || errno == EINVAL;
    ::close(fd);
    return isSynced;
}

} // namespace

bool platform::syncFile(const QString& path)
{
    // The name is an entry of the folder, and syncing a file does not write the folder.
    return sync(path) && sync(QFileInfo(path).absolutePath());
}
