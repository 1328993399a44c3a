// frame_writer <mapping> <event>   writes frames into a shared memory, driven by lines on its
// standard input:
//   mapping <bytes>              make the memory anew
//   reserve <bytes>              make memory of which only the first page can be accessed (Windows)
//   event                        make the event anew
//   fill <byte>                  set every byte of the memory
//   post <count>                 announce that often
//   frame <w> <h>                write a frame of that size, its bytes numbered from 0
//   torn <count>                 write frames whose headers change while they are read
//   stamped <count> <interval>   write frames of 3840 x 2160 every so many microseconds, each with
//                                the time of its announcement in the first eight bytes
//   resize <bytes>               change the length of the memory under its readers (Linux)
//   flap <count>                 cut the memory to nothing and restore it, that often (Linux)
//   cut-event                    take the memory of the event away (Linux)
//   overfill-event               set the count of announced frames to its maximum (Linux)
// Says "ready" at the start and answers each line with "ok" or "failed".

#include "framewriter/FrameObjects.h"
#include "framewriter/FrameWriter.h"

#include <chrono>
#include <cstring>
#include <functional>
#include <iostream>
#include <map>
#include <numeric>
#include <sstream>
#include <thread>

namespace
{

using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

/// NV12 data of that size, its bytes numbered from 0.
QByteArray numberedBytes(const QSize& size)
{
    QByteArray bytes(qsizetype(size.width()) * size.height() * 3 / 2, Qt::Uninitialized);
    std::iota(bytes.begin(), bytes.end(), '\0');
    return bytes;
}

bool repeat(long count, const std::function<bool()>& action)
{
    for (; count > 0; --count) {
        if (!action())
            return false;
    }
    return true;
}

bool writeTorn(FrameWriter& writer, long count)
{
    const QSize size(64, 64);
    const QByteArray data = numberedBytes(size);
    return repeat(count,
                  [&] { return writer.writeFaulty(FrameWriter::Fault::Torn, 0, size, data); });
}

bool writeStamped(FrameObjects& objects, long count, long interval)
{
    if (objects.size() < framelayout::MappingSize)
        return false;
    const QByteArray picture(framelayout::MaximumDataSize, '\x55');
    framelayout::store({0, 0, 3840, 2160, qint32(picture.size())}, objects.view());
    uchar* const data = objects.view() + framelayout::DataOffset;
    auto next = Clock::now();
    return repeat(count, [&] {
        next += microseconds(interval);
        std::this_thread::sleep_until(next);
        std::memcpy(data, picture.constData(), std::size_t(picture.size()));
        const qint64 now =
            std::chrono::duration_cast<microseconds>(Clock::now().time_since_epoch()).count();
        std::memcpy(data, &now, sizeof now);
        return objects.post();
    });
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3)
        return 2;
    const auto objects = makeFrameObjects(argv[1], argv[2]);
    FrameWriter writer(*objects);
    quint32 frames = 0;
    const std::map<std::string, std::function<bool(long, long)>> commands{
        {"mapping", [&](long size, long) { return objects->makeMemory(std::size_t(size)); }},
        {"reserve", [&](long size, long) { return objects->reserveMemory(std::size_t(size)); }},
        {"event", [&](long, long) { return objects->makeEvent(); }},
        {"fill",
         [&](long byte, long) {
             return std::memset(objects->view(), int(byte), objects->size()) != nullptr;
         }},
        {"post", [&](long count, long) { return repeat(count, [&] { return objects->post(); }); }},
        {"frame",
         [&](long w, long h) {
             const QSize size(static_cast<int>(w), static_cast<int>(h));
             return writer.write(frames++, size, numberedBytes(size));
         }},
        {"torn", [&](long count, long) { return writeTorn(writer, count); }},
        {"stamped",
         [&](long count, long interval) { return writeStamped(*objects, count, interval); }},
        {"resize", [&](long size, long) { return objects->resize(std::size_t(size)); }},
        {"flap",
         [&](long count, long) {
             return repeat(count,
                           [&] { return objects->resize(0) && objects->resize(objects->size()); });
         }},
        {"cut-event", [&](long, long) { return objects->cutEvent(); }},
        {"overfill-event", [&](long, long) { return objects->overfillEvent(); }},
    };

    std::cout << "ready" << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream words(line);
        std::string name;
        long first = 0;
        long second = 0;
        words >> name >> first >> second;
        const auto command = commands.find(name);
        const bool isDone = command != commands.end() && command->second(first, second);
        std::cout << (isDone ? "ok" : "failed") << std::endl;
    }
}
