// bench_flood [<scale> [<program>]]
//
// Floods the program on each of its inputs and compares it with the quiet program of the same run.
// A scale below 1 shortens the floods. Exits with 1 if an aim is missed.
#include "bench/flood/BadService.h"
#include "bench/flood/FloodedProgram.h"
#include "framewriter/FrameObjects.h"
#include "framewriter/FrameWriter.h"
#include "simulator/devices/DeviceTree.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <QUdpSocket>

#include <array>
#include <atomic>
#include <cstdio>
#include <thread>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Figures = FloodedProgram::Figures;

namespace
{

constexpr quint16 UdpPort = 49175;
constexpr double LongestAnswer = 2000;    // milliseconds
constexpr double LongestPercentile = 200; // milliseconds, for 99 of 100 answers
constexpr double LargestMemoryRatio = 1.2;
constexpr double LargestLog = 64 + 8; // MB: the bound of the log and the file being written

bool g_failed = false;

void check(bool isMet, const char* what)
{
    std::printf("  [%c] %s\n", isMet ? 'x' : ' ', what);
    std::fflush(stdout);
    g_failed = g_failed || !isMet;
}

void printFigures(const char* what, const Figures& figures, const Figures& quiet,
                  double memoryRatio = LargestMemoryRatio)
{
    std::printf(
        "%s\n  answers of the main thread: 99th percentile %.1f ms (ratio %.1f), worst %.0f "
        "ms (ratio %.1f)\n  memory: %.0f MB (ratio %.2f); log: grew by %.1f MB\n",
        what, figures.percentile, figures.percentile / quiet.percentile, figures.worst,
        figures.worst / quiet.worst, figures.resident, figures.resident / quiet.resident,
        figures.log);
    check(figures.percentile < LongestPercentile && figures.worst < LongestAnswer,
          "the window answers within 200 ms, 99 times in 100, and within 2 s always");
    check(figures.resident / quiet.resident<memoryRatio, memoryRatio> LargestMemoryRatio
              ? "memory stays below twice that of the quiet program"
              : "memory is flat");
    check(figures.log < LargestLog, "the log is within its bound");
}

void stayQuiet(std::chrono::milliseconds duration)
{
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, &QEventLoop::quit);
    loop.exec();
}

// Runs @p work on a thread of its own while the event loop reads the output of the program, which
// would block at a full pipe.
void runBeside(FloodedProgram& program, const std::function<void()>& work)
{
    std::atomic_bool isDone = false;
    const std::jthread worker([&] {
        work();
        isDone = true;
    });
    program.waitUntil([&] { return isDone.load(); }, 10min);
}

// Sends datagrams without a pause. Returns their number.
qint64 floodUdp(std::chrono::milliseconds duration)
{
    const int socket = ::socket(AF_INET, SOCK_DGRAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(UdpPort);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const QByteArray data(100, '\x5a');
    qint64 sent = 0;
    const QDeadlineTimer deadline(duration);
    while (!deadline.hasExpired()) {
        for (int i = 0; i < 100; ++i) {
            if (::sendto(socket, data.constData(), std::size_t(data.size()), 0,
                         reinterpret_cast<const sockaddr*>(&address), sizeof address) >= 0)
                ++sent;
        }
    }
    ::close(socket);
    return sent;
}

void testUdp(FloodedProgram& program, const Figures& quiet, double scale)
{
    qint64 sent = 0;
    const Figures figures = program.measure([&] {
        runBeside(program,
                  [&] { sent = floodUdp(std::chrono::milliseconds(qint64(10'000 * scale))); });
    });
    std::printf("%lld datagrams", static_cast<long long>(sent));
    printFigures(" on the UDP port", figures, quiet);
    QUdpSocket socket;
    bool isRead = false;
    for (int i = 0; i < 30 && !isRead; ++i) { // the first datagrams may still meet a full socket
        socket.writeDatagram("after the flood", QHostAddress::LocalHost, UdpPort);
        isRead = program.waitUntil(
            [&] { return program.hasLogged(QByteArray("after the flood").toHex(' ').toUpper()); },
            1s);
    }
    check(isRead, "a datagram after the flood is read");
}

QByteArray sourceMessage(int number)
{
    const bool isByod = number % 2 == 1;
    return "6 {\"byod_status\":" + QByteArray(isByod ? "2" : "1") +
           ",\"cmd\":6,\"is_byodui_show\":1,\"seq\":" + QByteArray::number(number) +
           ",\"type\":2,\"zoom_status\":1}\n";
}

void testSource(FloodedProgram& program, const Figures& quiet, double scale)
{
    const int count = int(100'000 * scale) * 2; // even, so that the last state is BYOD
    int replies = 0;
    const Figures figures =
        program.measure([&] { replies = program.send(count, sourceMessage, count); });
    std::printf("%d changes of message 6", count);
    printFigures("", figures, quiet);
    check(replies == count, "each is acknowledged");
    check(program.waitUntil([&] { return program.registryValue() == "1"; }),
          "the registry holds the last state");
}

// Four valid changes of the volume, then a malformed message.
QByteArray channelMessage(int number)
{
    static const QByteArrayList s_malformed{
        "1 \n"_ba,
        "1 {\"cmd\":1,\"type\":2,\"vol\n"_ba,
        "1 [1,2,3]\n"_ba,
        "1 17\n"_ba,
        "1 {\"cmd\":\"1\",\"type\":[],\"seq\":{},\"volume\":null}\n"_ba,
        "1 {\"cmd\":11,\"type\":1,\"ota_ver\":\"\xff\xc0\xaf\"}\n"_ba,
        "{\"cmd\":1}\n"_ba,
        "99999999999999999999 {\"cmd\":1}\n"_ba};
    if (number % 5 == 4)
        return s_malformed.at(number / 5 % s_malformed.size());
    return "1 {\"cmd\":1,\"seq\":" + QByteArray::number(number) +
           ",\"type\":2,\"volume\":" + QByteArray::number(number % 101) + "}\n";
}

void testMessages(FloodedProgram& program, const Figures& quiet, double scale)
{
    const int count = int(200'000 * scale) * 5;
    const int expected = count / 5 * 4;
    int replies = 0;
    const Figures figures =
        program.measure([&] { replies = program.send(count, channelMessage, expected); });
    std::printf("%d channel messages, a fifth of them malformed", count);
    printFigures("", figures, quiet);
    check(replies == expected, "each valid message is acknowledged");
}

// As 50 second starts a second ask.
void testStarts(FloodedProgram& program, const Figures& quiet, double scale)
{
    const int count = int(500 * scale);
    const Figures figures = program.measure([&] {
        runBeside(program, [&] {
            for (int i = 0; i < count; ++i) {
                program.askForWindow();
                std::this_thread::sleep_for(20ms);
            }
        });
    });
    std::printf("%d second starts, 50 a second", count);
    printFigures("", figures, quiet);
}

// Each needs a start of its own, since the program asks for the profile when a user is signed in.
void testService(const QString& path, BadService::Reply reply, const char* what, const char* line,
                 double memoryRatio = LargestMemoryRatio)
{
    BadService service(reply);
    FloodedProgram program(path, service.url());
    program.waitUntil([&] { return service.hasRequest(); });
    const Figures quiet = program.measure([] { stayQuiet(3s); });
    const Figures figures = program.measure([&] {
        service.answer();
        program.waitUntil([&] { return service.isDone(); });
        stayQuiet(1s);
    });
    std::printf("%s, %.0f MB sent", what, service.sentMegabytes());
    printFigures("", figures, quiet, memoryRatio);
    check(program.hasLogged(line), "the request has failed, with a line in the log");
    check(program.quit(), "the program ends");
}

// Plugs and unplugs the display's devices without a pause.
void testHotPlug(FloodedProgram& program, const Figures& quiet, double scale)
{
    using simulator::DeviceTree;
    constexpr std::array Devices{DeviceTree::Device::Microphone, DeviceTree::Device::Camera,
                                 DeviceTree::Device::Speaker};
    int changes = 0;
    const Figures figures = program.measure([&] {
        runBeside(program, [&] {
            DeviceTree tree;
            if (const QString error = tree.open(program.deviceRoot()); !error.isEmpty())
                qFatal("%s", qPrintable(error));
            const QDeadlineTimer deadline(std::chrono::milliseconds(qint64(10'000 * scale)));
            for (; !deadline.hasExpired(); ++changes) {
                const auto device = Devices.at(std::size_t(changes) / 2 % Devices.size());
                if (changes % 2 == 0)
                    (void)tree.plug(device);
                else
                    tree.unplug(device);
            }
        });
    });
    std::printf("%d devices plugged in and out", changes);
    printFigures("", figures, quiet);
}

// Writes frames of changing sizes at the given interval. Returns their number.
quint32 writeFrames(FrameWriter& writer, std::chrono::microseconds interval,
                    std::chrono::milliseconds duration)
{
    static const std::array s_sizes{QSize(640, 360), QSize(64, 64), QSize(1280, 720), QSize(2, 2),
                                    QSize(854, 480)};
    const QByteArray data(1280 * 720 * 3 / 2, '\x55');
    quint32 frames = 0;
    auto next = std::chrono::steady_clock::now();
    for (const QDeadlineTimer deadline(duration); !deadline.hasExpired(); ++frames) {
        const QSize size = s_sizes.at(frames % s_sizes.size());
        writer.write(frames, size, data.first(qsizetype(size.width()) * size.height() * 3 / 2));
        next += interval;
        std::this_thread::sleep_until(next);
    }
    return frames;
}

// Has a start of its own, since the monitor window shows frames during the first set-up only.
void testFrames(const QString& path, double scale)
{
    BadService service(BadService::Reply::LargeMessage); // does not answer unless asked to
    FloodedProgram program(path, service.url());
    const auto objects = makeFrameObjects(framelayout::MappingName, framelayout::EventName);
    if (!objects->makeMemory(framelayout::MappingSize) || !objects->makeEvent())
        qFatal("The shared memory of the frames could not be made.");
    FrameWriter writer(*objects);
    program.send(
        1, [](int) { return "0 {\"cmd\":0,\"isReady\":2,\"seq\":1,\"type\":2}\n"_ba; }, 1);
    check(program.startSetUp(), "the monitor window opens");
    const auto write = [&](std::chrono::microseconds interval) {
        quint32 frames = 0;
        runBeside(program, [&] {
            frames =
                writeFrames(writer, interval, std::chrono::milliseconds(qint64(10'000 * scale)));
        });
        return frames;
    };
    const Figures quiet = program.measure([&] { write(33ms); });
    quint32 frames = 0;
    const Figures figures = program.measure([&] { frames = write(1ms); });
    std::printf("%u frames of five sizes, 1000 a second, against 30 a second", frames);
    printFigures("", figures, quiet);
    check(program.quit(), "the program ends");
}

// The last state before the end is "available", for which the value is 0.
void testQuit(FloodedProgram& program, double scale)
{
    const int count = int(10'000 * scale) * 2 + 1;
    const int replies = program.send(count, sourceMessage, count);
    std::printf("%d changes of message 6, and the end at once\n", count);
    check(replies == count, "each is acknowledged");
    check(program.quit(), "the program ends");
    check(program.registryValue() == "0", "the registry holds the last state");
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const double scale = argc > 1 ? QByteArray(argv[1]).toDouble() : 1;
    const QString path = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QStringLiteral(VORN_PROGRAM);
    testService(path, BadService::Reply::LargeMessage, "A message of 60 MB from the service",
                "response exceeds");
    // Qt's HTTP client reads a head without a limit, so only the time of a request bounds it.
    testService(path, BadService::Reply::EndlessHead, "Headers without an end from the service",
                "Connection to server failed.", 2);
    testFrames(path, scale);
    FloodedProgram program(path);
    program.send(
        1, [](int) { return "0 {\"cmd\":0,\"isReady\":1,\"seq\":1,\"type\":2}\n"_ba; }, 1);
    const Figures quiet = program.measure([] { stayQuiet(10s); });
    std::printf(
        "the quiet program: answers of the main thread: 99th percentile %.1f ms, worst %.0f "
        "ms; memory %.0f MB; log grew by %.2f MB\n",
        quiet.percentile, quiet.worst, quiet.resident, quiet.log);
    testUdp(program, quiet, scale);
    testSource(program, quiet, scale);
    testMessages(program, quiet, scale);
    testStarts(program, quiet, scale);
    testHotPlug(program, quiet, scale);
    testQuit(program, scale);
    return g_failed ? 1 : 0;
}
