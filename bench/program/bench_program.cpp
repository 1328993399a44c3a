// Compares the program with a bare window that has the same imports: start and memory; counts how
// often it wakes up.
#include "bench/Measure.h"
#include "bench/program/ProgramRun.h"
#include "bench/program/Starts.h"
#include "simulator/devices/DeviceTree.h"

#include <QCoreApplication>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using simulator::DeviceTree;

namespace
{

// Milliseconds.
constexpr int SettleTime = 2000;
constexpr int RestTime = 20000;
constexpr int StagingTime = 17000;  // until the page has shown all devices
constexpr int GivingUpTime = 33000; // until the page no longer waits for devices

// Plugs in all devices. Returns the reason of a failure, otherwise an empty text.
QString plugAll(DeviceTree& tree, const QString& root)
{
    QString error = tree.open(root);
    for (const auto device : {DeviceTree::Device::Microphone, DeviceTree::Device::Speaker,
                              DeviceTree::Device::Camera}) {
        if (error.isEmpty())
            error = tree.plug(device);
    }
    return error;
}

// A resting program wakes up twice a second at most.
void printWakeUps(const char* state, const ProgramRun& program)
{
    constexpr double MostPerSecond = 2;
    const double before = program.waits();
    waitFor(RestTime);
    bench::printRatio(state, (program.waits() - before) * 1000 / RestTime, MostPerSecond,
                      "wake-ups a second", 1.0);
}

// Without a display, and with one whose devices never come, after the page has stopped waiting.
void measureResting(const QTemporaryDir& home)
{
    const ProgramRun program(QStringLiteral(VORN_PROGRAM), home.path());
    waitFor(SettleTime);
    printWakeUps("resting, disconnected", program);
    QLocalServer display;
    display.listen(home.filePath(u"portalhub"_s));
    QObject::connect(&display, &QLocalServer::newConnection, &display, [&display] {
        display.nextPendingConnection()->write("0 {\"cmd\":0,\"type\":2,\"isReady\":1}\n");
    });
    waitFor(GivingUpTime);
    printWakeUps("resting, without the devices", program);
}

// With a display whose devices are there. The program asks it for the firmware version again and
// again.
void measureConnected(const QTemporaryDir& home)
{
    QLocalServer display;
    display.listen(home.filePath(u"portalhub"_s));
    QObject::connect(&display, &QLocalServer::newConnection, &display, [&display] {
        QLocalSocket* const program = display.nextPendingConnection();
        program->write("0 {\"cmd\":0,\"type\":2,\"isReady\":1}\n");
        QObject::connect(program, &QLocalSocket::readyRead, program, [program] {
            if (program->readAll().contains("\"type\":0"))
                program->write("11 {\"cmd\":11,\"type\":1,\"ota_ver\":\"4.1.0\"}\n");
        });
    });
    DeviceTree devices;
    if (const QString error = plugAll(devices, home.filePath(u"sys"_s)); !error.isEmpty())
        qFatal("The devices cannot be plugged in: %s", qPrintable(error));
    const ProgramRun program(QStringLiteral(VORN_PROGRAM), home.path());
    waitFor(StagingTime);
    printWakeUps("resting, connected", program);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const QTemporaryDir home;
    measureResting(home);
    compareStarts(home);
    measureConnected(home);
}
