#include "bench/Quantile.h"
#include "simulator/devices/DeviceTree.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using simulator::DeviceTree;

namespace
{

constexpr int StartRounds = 9;
constexpr int SettleTime = 2000;
constexpr int IdleTime = 40000;
constexpr int StagingTime = 17000; // until the display's devices have all been shown
constexpr int Patience = 60000;

void waitFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

QByteArray procFile(qint64 pid, const char* name)
{
    QFile file(u"/proc/%1/%2"_s.arg(pid).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

double residentMegabytes(qint64 pid)
{
    const double pages = procFile(pid, "statm").split(' ').value(1).toDouble();
    return pages * double(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// Seconds of processor time that all threads have had, finer than the system's clock tick.
double processorSeconds(qint64 pid)
{
    double nanoseconds = 0;
    const QStringList threads =
        QDir(u"/proc/%1/task"_s.arg(pid)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& thread : threads)
        nanoseconds += procFile(thread.toLongLong(), "schedstat").split(' ').value(0).toDouble();
    return nanoseconds / 1e9;
}

/// A program on the screen in a home of its own, followed until its first frame.
class Run
{
public:
    Run(const QString& program, const QTemporaryDir& home)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.path());
        for (const char* variable : {"XDG_STATE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                                     "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
            environment.insert(QLatin1String(variable), home.path());
        environment.insert(u"VORN_PORTALHUB_SOCKET"_s, home.filePath(u"portalhub"_s));
        environment.insert(u"VORN_SYSFS_ROOT"_s, home.filePath(u"sys"_s));
        environment.insert(u"QT_LOGGING_RULES"_s, u"qt.scenegraph.time.renderloop.debug=true"_s);
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        QElapsedTimer timer;
        timer.start();
        m_process.start(program, QStringList());
        // A frame that took no time came before the window was on the screen.
        static const QRegularExpression frame(u"rendered (with .* )?in (?!0ms)"_s,
                                              QRegularExpression::CaseInsensitiveOption);
        QString output;
        while (!output.contains(frame) && m_process.waitForReadyRead(Patience))
            output += QString::fromLocal8Bit(m_process.readAll());
        m_firstFrame = double(timer.nsecsElapsed()) / 1e6;
        QObject::connect(&m_process, &QProcess::readyRead, &m_process,
                         [this] { m_process.readAll(); });
    }

    ~Run()
    {
        m_process.terminate();
        m_process.waitForFinished(Patience);
    }

    double firstFrameMilliseconds() const { return m_firstFrame; }
    qint64 pid() const { return m_process.processId(); }

private:
    QProcess m_process;
    double m_firstFrame = 0;
};

void printRatio(const char* what, double value, double baseline, const char* unit, double aim)
{
    std::printf("%s: ratio %.2f (%.1f %s against %.1f; aim %.2f)\n", what, value / baseline, value,
                unit, baseline, aim);
    std::fflush(stdout);
}

void compareStarts(const QTemporaryDir& home)
{
    std::vector<double> times[2];
    std::vector<double> memory[2];
    const QString programs[2] = {QStringLiteral(BARE_WINDOW), QStringLiteral(VORN_PROGRAM)};
    for (int round = 0; round < StartRounds; ++round) {
        for (int i = 0; i < 2; ++i) {
            const Run run(programs[i], home);
            times[i].push_back(run.firstFrameMilliseconds());
            waitFor(SettleTime);
            memory[i].push_back(residentMegabytes(run.pid()));
        }
    }
    printRatio("start to first frame", median(times[1]), median(times[0]), "ms", 1.25);
    printRatio("resident memory", median(memory[1]), median(memory[0]), "MB", 1.35);
}

/// Empty, or why they cannot be.
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

/// The connected program asks for the firmware version and checks the devices all the while.
void compareIdling(const QTemporaryDir& home)
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
    // Side by side, since what waking up costs a process differs from one minute to the next.
    const Run bare(QStringLiteral(BARE_WINDOW), home);
    const Run program(QStringLiteral(VORN_PROGRAM), home);
    waitFor(StagingTime);
    const double bareBefore = processorSeconds(bare.pid());
    const double programBefore = processorSeconds(program.pid());
    waitFor(IdleTime);
    const double baseline = processorSeconds(bare.pid()) - bareBefore;
    const double connected = processorSeconds(program.pid()) - programBefore;
    printRatio("processor time of idling, connected", connected * 1000, baseline * 1000,
               "ms in 40 s", 1.5);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const QTemporaryDir home;
    compareStarts(home);
    compareIdling(home);
}
