// Preloaded into a program, records every change that it makes to the files below one folder.
//
//     POWERCUT_ROOT=<folder> POWERCUT_RECORD=<file> LD_PRELOAD=<this library> <program>
//
// A record is a header of five 64-bit numbers (kind, number of the file, offset or size, lengths of
// two texts) and the texts; replay.py reads them. The order of the records is that of the calls.
// Writes through a mapping are not recorded: SQLite uses them in WAL mode only.

#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#define RECORDED extern "C" __attribute__((visibility("default")))

namespace
{

enum class Kind : char {
    Create = 'C', ///< first text: path, empty for a file without a name
    Folder = 'D',
    Link = 'L',
    Mark = 'M',
    Open = 'O',   ///< of a file or folder that the recorder has not seen before
    Rename = 'R', ///< from the first path to the second
    Sync = 'S',
    Truncate = 'T',
    Unlink = 'U',
    Write = 'W',
};

/// Calls the C library's function of a name.
template <typename Result, typename... Args>
Result call(const char* name, Args... args)
{
    return reinterpret_cast<Result (*)(Args...)>(::dlsym(RTLD_NEXT, name))(args...);
}

std::string linkTarget(const std::string& link)
{
    char path[4096];
    const auto length = ::readlink(link.c_str(), path, sizeof path);
    return length > 0 ? std::string(path, std::size_t(length)) : std::string();
}

std::string descriptorPath(int fd)
{
    return "/proc/self/fd/" + std::to_string(fd);
}

class Recorder
{
public:
    static Recorder& instance()
    {
        static auto* const s_recorder = new Recorder; // outlives every thread
        return *s_recorder;
    }

    std::unique_lock<std::mutex> lock() { return std::unique_lock(m_mutex); }

    /// The path below the root; empty when it lies outside.
    std::string within(int folder, const char* path) const
    {
        if (m_fd < 0)
            return {};
        std::string full = path;
        if (path[0] != '/')
            full = linkTarget(folder == AT_FDCWD ? "/proc/self/cwd" : descriptorPath(folder)) +
                   '/' + full;
        return full.starts_with(m_root + '/') ? full.substr(m_root.size() + 1) : std::string();
    }

    /// The number of an open file or folder below the root, otherwise 0.
    std::uint64_t number(int fd) const
    {
        struct stat status = {};
        if (m_fd < 0 || ::fstat(fd, &status) != 0 || status.st_dev != m_device ||
            !m_known.contains(status.st_ino))
            return 0;
        return status.st_ino;
    }

    void opened(int fd, const std::string& path, bool isNew, bool isEmptied)
    {
        struct stat status = {};
        if (::fstat(fd, &status) != 0)
            return;
        const bool isKnown = !m_known.insert(status.st_ino).second;
        if (isNew)
            put(Kind::Create, status.st_ino, 0, path);
        else if (!isKnown)
            put(Kind::Open, status.st_ino, 0, path);
        if (!isNew && isEmptied)
            put(Kind::Truncate, status.st_ino, 0);
    }

    /// Records what a call has written, read back from the file.
    void written(int fd, off64_t offset, ssize_t count)
    {
        const auto file = number(fd);
        if (file == 0 || count <= 0)
            return;
        std::string data(std::size_t(count), '\0');
        const int reader = call<int>("open64", descriptorPath(fd).c_str(), O_RDONLY | O_CLOEXEC);
        if (::pread64(reader, data.data(), data.size(), offset) != count)
            std::abort(); // a record with a gap proves nothing
        ::close(reader);
        put(Kind::Write, file, std::uint64_t(offset), data);
    }

    void put(Kind kind, std::uint64_t file, std::uint64_t offset, std::string_view first = {},
             std::string_view second = {})
    {
        if (m_fd < 0)
            return;
        const std::uint64_t header[] = {std::uint64_t(kind), file, offset, first.size(),
                                        second.size()};
        std::vector<char> bytes(sizeof header + first.size() + second.size());
        std::memcpy(bytes.data(), header, sizeof header);
        first.copy(bytes.data() + sizeof header, first.size());
        second.copy(bytes.data() + sizeof header + first.size(), second.size());
        if (call<ssize_t>("write", m_fd, bytes.data(), bytes.size()) != ssize_t(bytes.size()))
            std::abort();
    }

private:
    Recorder()
    {
        const char* const root = std::getenv("POWERCUT_ROOT");
        const char* const record = std::getenv("POWERCUT_RECORD");
        if (!root || !record)
            return;
        struct stat status = {};
        if (::stat(root, &status) != 0)
            return;
        m_device = status.st_dev;
        m_root = root;
        m_fd = call<int>("open64", record, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    }

    std::mutex m_mutex; // held from before a call until its record is written
    std::string m_root;
    dev_t m_device = 0; // numbers of files are unique within it
    std::unordered_set<std::uint64_t> m_known;
    int m_fd = -1;
};

int recordedOpen(const char* function, int folder, const char* path, int flags, mode_t mode)
{
    Recorder& recorder = Recorder::instance();
    const auto lock = recorder.lock();
    const std::string name = recorder.within(folder, path);
    struct stat status = {};
    const bool isUnnamed = (flags & O_TMPFILE) == O_TMPFILE;
    const bool isNew = isUnnamed || ::fstatat(folder, path, &status, 0) != 0;
    const int fd = call<int>(function, folder, path, flags, mode);
    if (fd >= 0 && !name.empty())
        recorder.opened(fd, isUnnamed ? std::string() : name, isNew, (flags & O_TRUNC) != 0);
    return fd;
}

ssize_t recordedWrite(int fd, const void* data, ssize_t count, off64_t offset)
{
    Recorder& recorder = Recorder::instance();
    if (const auto file = recorder.number(fd); file != 0 && count > 0)
        recorder.put(Kind::Write, file, std::uint64_t(offset),
                     {static_cast<const char*>(data), std::size_t(count)});
    return count;
}

int recordedSync(const char* function, int fd)
{
    Recorder& recorder = Recorder::instance();
    const auto lock = recorder.lock();
    const int result = call<int>(function, fd);
    if (const auto file = recorder.number(fd); file != 0 && result == 0)
        recorder.put(Kind::Sync, file, 0);
    return result;
}

int recordedTruncate(int fd, off64_t size)
{
    Recorder& recorder = Recorder::instance();
    const auto lock = recorder.lock();
    const int result = call<int>("ftruncate64", fd, size);
    if (const auto file = recorder.number(fd); file != 0 && result == 0)
        recorder.put(Kind::Truncate, file, std::uint64_t(size));
    return result;
}

int recordedUnlink(int folder, const char* path, int flags)
{
    Recorder& recorder = Recorder::instance();
    const auto lock = recorder.lock();
    const std::string name = recorder.within(folder, path);
    const int result = call<int>("unlinkat", folder, path, flags);
    if (result == 0 && !name.empty())
        recorder.put(Kind::Unlink, 0, 0, name);
    return result;
}

int recordedRename(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags)
{
    Recorder& recorder = Recorder::instance();
    const auto lock = recorder.lock();
    const std::string first = recorder.within(fromFolder, from);
    const std::string second = recorder.within(toFolder, to);
    const int result = call<int>("renameat2", fromFolder, from, toFolder, to, flags);
    if (result == 0 && !first.empty() && !second.empty())
        recorder.put(Kind::Rename, 0, 0, first, second);
    return result;
}

int recordedLink(int fromFolder, const char* from, int toFolder, const char* to, int flags)
{
    Recorder& recorder = Recorder::instance();
    const auto lock = recorder.lock();
    const std::string name = recorder.within(toFolder, to);
    const int result = call<int>("linkat", fromFolder, from, toFolder, to, flags);
    struct stat status = {};
    if (result == 0 && !name.empty() && ::fstatat(toFolder, to, &status, 0) == 0)
        recorder.put(Kind::Link, status.st_ino, 0, name);
    return result;
}

int recordedFolder(int parent, const char* path, mode_t mode)
{
    Recorder& recorder = Recorder::instance();
    const auto lock = recorder.lock();
    const std::string name = recorder.within(parent, path);
    const int result = call<int>("mkdirat", parent, path, mode);
    if (result == 0 && !name.empty())
        recorder.put(Kind::Folder, 0, 0, name);
    return result;
}

} // namespace

/// Adds a text to the records, with which the program says how far it has come.
RECORDED void powercutMark(const char* text)
{
    const auto lock = Recorder::instance().lock();
    Recorder::instance().put(Kind::Mark, 0, 0, text);
}

namespace
{

mode_t modeOf(int flags, va_list args)
{
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(args, mode_t) : 0;
}

} // namespace

RECORDED int open(const char* path, int flags, ...)
{
    va_list args;
    va_start(args, flags);
    const mode_t mode = modeOf(flags, args);
    va_end(args);
    return recordedOpen("openat", AT_FDCWD, path, flags, mode);
}

RECORDED int open64(const char* path, int flags, ...)
{
    va_list args;
    va_start(args, flags);
    const mode_t mode = modeOf(flags, args);
    va_end(args);
    return recordedOpen("openat64", AT_FDCWD, path, flags, mode);
}

RECORDED int openat(int folder, const char* path, int flags, ...)
{
    va_list args;
    va_start(args, flags);
    const mode_t mode = modeOf(flags, args);
    va_end(args);
    return recordedOpen("openat", folder, path, flags, mode);
}

RECORDED int openat64(int folder, const char* path, int flags, ...)
{
    va_list args;
    va_start(args, flags);
    const mode_t mode = modeOf(flags, args);
    va_end(args);
    return recordedOpen("openat64", folder, path, flags, mode);
}

RECORDED ssize_t write(int fd, const void* data, size_t size)
{
    const auto lock = Recorder::instance().lock();
    const ssize_t count = call<ssize_t>("write", fd, data, size);
    // With O_APPEND too, the position afterwards is the end of what was written.
    return recordedWrite(fd, data, count, ::lseek64(fd, 0, SEEK_CUR) - count);
}

RECORDED ssize_t pwrite(int fd, const void* data, size_t size, off_t offset)
{
    const auto lock = Recorder::instance().lock();
    return recordedWrite(fd, data, call<ssize_t>("pwrite64", fd, data, size, offset), offset);
}

RECORDED ssize_t pwrite64(int fd, const void* data, size_t size, off64_t offset)
{
    const auto lock = Recorder::instance().lock();
    return recordedWrite(fd, data, call<ssize_t>("pwrite64", fd, data, size, offset), offset);
}

RECORDED ssize_t writev(int fd, const iovec* parts, int partCount)
{
    const auto lock = Recorder::instance().lock();
    const ssize_t count = call<ssize_t>("writev", fd, parts, partCount);
    Recorder::instance().written(fd, ::lseek64(fd, 0, SEEK_CUR) - count, count);
    return count;
}

RECORDED ssize_t sendfile64(int to, int from, off64_t* offset, size_t size)
{
    const auto lock = Recorder::instance().lock();
    const ssize_t count = call<ssize_t>("sendfile64", to, from, offset, size);
    Recorder::instance().written(to, ::lseek64(to, 0, SEEK_CUR) - count, count);
    return count;
}

RECORDED int fsync(int fd)
{
    return recordedSync("fsync", fd);
}

RECORDED int fdatasync(int fd)
{
    return recordedSync("fdatasync", fd);
}

RECORDED int ftruncate(int fd, off_t size)
{
    return recordedTruncate(fd, size);
}

RECORDED int ftruncate64(int fd, off64_t size)
{
    return recordedTruncate(fd, size);
}

RECORDED int unlink(const char* path)
{
    return recordedUnlink(AT_FDCWD, path, 0);
}

RECORDED int unlinkat(int folder, const char* path, int flags)
{
    return recordedUnlink(folder, path, flags);
}

RECORDED int rename(const char* from, const char* to)
{
    return recordedRename(AT_FDCWD, from, AT_FDCWD, to, 0);
}

RECORDED int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
                       unsigned flags)
{
    return recordedRename(fromFolder, from, toFolder, to, flags);
}

RECORDED int link(const char* from, const char* to)
{
    return recordedLink(AT_FDCWD, from, AT_FDCWD, to, 0);
}

RECORDED int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags)
{
    return recordedLink(fromFolder, from, toFolder, to, flags);
}

RECORDED int mkdir(const char* path, mode_t mode)
{
    return recordedFolder(AT_FDCWD, path, mode);
}

RECORDED int mkdirat(int parent, const char* path, mode_t mode)
{
    return recordedFolder(parent, path, mode);
}
