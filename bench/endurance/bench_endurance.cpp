// bench_endurance [--minutes <minutes>]
//
// An accelerated working year: the program's own objects and windows in this process, driven as the
// pages drive them, against the simulator in another one. Each of its 250 days has a sign-in, eight
// connections with five meetings and three first set-ups with video, camera moves, a change of the
// profile and of the picture, settings, a night's sleep of the computer, and a display that
// vanishes in the middle; every tenth request meets a service that fails, and the program is
// upgraded and started again once a month. Covers what leaks or is mixed up over time in all rooms
// but the single instance and the tray.
//
// Does as many days as fit into the minutes (10). Exits with 1 if memory, handles, threads,
// temporary files or the log grow after the first tenth, or if another state comes out than the one
// computed.
//
// With the address sanitizer, the leaks that it reports at the end are those of the driver for
// OpenGL and of Qt's own queues: ASAN_OPTIONS=detect_leaks=0.
#include "bench/endurance/Resources.h"
#include "bench/endurance/WorkingYear.h"
#include "bench/faults/Faults.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto HomeVariable = "VORN_ENDURANCE_HOME";

double minutesFrom(const QStringList& arguments)
{
    const qsizetype at = arguments.indexOf(u"--minutes"_s);
    return at < 0 ? 10 : arguments.value(at + 1).toDouble();
}

void settle()
{
    QEventLoop loop;
    QTimer::singleShot(100ms, &loop, &QEventLoop::quit);
    loop.exec();
}

int workInHome(const QString& home, double minutes)
{
    SimulatedRoom room(QStringLiteral(VORN_SIMULATOR));
    WorkingYear year(home, room);
    ResourceDiary diary;
    const std::chrono::milliseconds length(qint64(minutes * 60'000));
    const auto begin = std::chrono::steady_clock::now();
    int day = 0;
    while (day < WorkingYear::Days &&
           std::chrono::steady_clock::now() - begin - year.slept() < length) {
        year.work(++day);
        settle();
        const Resources resources = Resources::measure(home);
        diary.add(resources);
        if (day % 10 == 0)
            std::printf("day %d: %.1f MB, heap %.1f MB, %.0f handles, %.0f threads, log %.2f MB\n",
                        day, resources.resident, resources.heap, resources.handles,
                        resources.threads, resources.log);
        std::fflush(stdout);
    }
    std::printf("%d of %d days\n", day, WorkingYear::Days);
    const bool isFlat = diary.report();
    const bool isRight = year.close();
    std::fflush(stdout); // before the report of a sanitizer, which drops what is not written
    return isFlat && isRight ? 0 : 1;
}

void printEnd(const QString& fileName)
{
    constexpr qint64 Length = 10'000;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return;
    file.seek(qMax(qint64{0}, file.size() - Length));
    std::fputs(file.readAll().constData(), stderr);
}

QProcessEnvironment environmentIn(const QTemporaryDir& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1StringView(HomeVariable), home.path());
    environment.insert(u"TMPDIR"_s, home.filePath(u"tmp"_s));
    for (const auto variable : {"HOME"_L1, "XDG_STATE_HOME"_L1, "XDG_CONFIG_HOME"_L1,
                                "XDG_DATA_HOME"_L1, "XDG_CACHE_HOME"_L1, "XDG_RUNTIME_DIR"_L1})
        environment.insert(variable, home.path());
    environment.insert(u"VORN_PORTALHUB_SOCKET"_s, home.filePath(u"portalhub"_s));
    environment.insert(u"VORN_SYSFS_ROOT"_s, home.filePath(u"sys"_s));
    const QString shim = QStringLiteral(VORN_FAULT_SHIM);
    if (shim.isEmpty())
        return environment;
    QFile faults(home.filePath(u"faults"_s));
    if (!faults.open(QIODevice::WriteOnly) || !faults.resize(sizeof(Faults)))
        qFatal("The file of the clocks cannot be written.");
    environment.insert(u"VORN_FAULTS"_s, faults.fileName());
    environment.insert(u"LD_PRELOAD"_s, shim);
    return environment;
}

/// The program keeps its settings beside its executable, so this one runs from a copy.
int runCopy(const QStringList& arguments)
{
    const QTemporaryDir home;
    const QDir source(QCoreApplication::applicationDirPath());
    QDir().mkpath(home.filePath(u"app"_s));
    QDir().mkpath(home.filePath(u"tmp"_s));
    const QString self = u"bench_endurance"_s;
    for (const QFileInfo& file : source.entryInfoList(
             {self, u"PatchPilot"_s, u"UpdateInstaller"_s, u"config.json"_s, u"libPortalHub.so*"_s},
             QDir::Files))
        QFile::copy(file.filePath(), home.filePath(u"app/"_s + file.fileName()));
    QProcess process;
    process.setProcessEnvironment(environmentIn(home));
    process.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    const QString errors = home.filePath(u"errors"_s); // the log goes there, too
    process.setStandardErrorFile(errors);
    process.start(home.filePath(u"app/"_s + self), arguments.mid(1));
    process.waitForFinished(-1);
    const int code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : 1;
    if (code != 0)
        printEnd(errors);
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    const QString home = qEnvironmentVariable(HomeVariable);
    const QStringList arguments = QCoreApplication::arguments();
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return home.isEmpty() ? runCopy(arguments) : workInHome(home, minutesFrom(arguments));
}
