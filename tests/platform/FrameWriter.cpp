// frame_writer <mapping> <event>: plays the process that fills the shared memory. Commands, one a
// line:
//   mapping <bytes>   make the memory anew, under the same name
//   event             make the event anew
//   fill <byte>       set every byte of the memory
//   post <count>      announce that often
//   resize <bytes>    cut the memory short, or give it back
//   flap <count>      do that again and again, while the reader copies
//   cut-event         take the event's memory away
// Each is answered with "ok". Both names are removed at the end, unless the process is killed.

#include <cstdio>
#include <cstring>
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

    bool run(const std::string& command, long number)
    {
        if (command == "mapping")
            return makeMapping(number);
        if (command == "event")
            return makeEvent();
        if (command == "fill")
            return fill(static_cast<char>(number));
        if (command == "post")
            return post(number);
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

    bool flap(long count) const
    {
        for (; count > 0; --count) {
            if (::ftruncate(m_fd, 0) != 0 || ::ftruncate(m_fd, m_size) != 0)
                return false;
        }
        return true;
    }

    std::string m_mappingName;
    std::string m_eventName;
    int m_fd = -1;
    long m_size = 0;
    sem_t* m_event = nullptr;
};

void say(const char* line)
{
    std::printf("%s\n", line);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3)
        return 2;
    Writer writer(argv[1], argv[2]);
    say("ready");
    char line[128];
    while (std::fgets(line, sizeof(line), stdin)) {
        char command[64] = "";
        long number = 0;
        std::sscanf(line, "%63s %ld", command, &number);
        say(writer.run(command, number) ? "ok" : "failed");
    }
    return 0;
}
