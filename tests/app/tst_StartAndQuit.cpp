#include "ProgramRun.h"

#include <QLibraryInfo>

#include <csignal>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

constexpr int Patience = 60000;

bool isRunning(const QProcess& process)
{
    return process.state() == QProcess::Running;
}

void sendSignal(const QProcess& process, int signal)
{
    ::kill(static_cast<pid_t>(process.processId()), signal);
}

/// Prints the whole log, which Qt Test would cut.
void show(const QByteArray& log)
{
    std::fwrite(log.constData(), 1, std::size_t(log.size()), stderr);
}

} // namespace

/// Starts and ends the real program many times.
class tst_StartAndQuit : public QObject
{
    Q_OBJECT

private slots:
    void oneOfTwoStartsSurvives();
    void quitsCleanlyAHundredTimes();
    void endsWithItsScreen();
    void survivesTheEndOfItsLogReader();
    void endsWhileItShowsAnError();
    void logsItsLifeInOrder();
};

/// Each round kills the survivor, so that the next one also finds the remains of a crash.
void tst_StartAndQuit::oneOfTwoStartsSurvives()
{
    const ProgramHome home;
    DisplayEnd display(home);
    for (int round = 0; round < 20; ++round) {
        const auto one = home.start(u"offscreen"_s);
        const auto two = home.start(u"offscreen"_s);
        QVERIFY2(display.nextProgram(), "no instance started");
        QTRY_VERIFY_WITH_TIMEOUT(isRunning(*one) != isRunning(*two), Patience);
        QProcess& survivor = isRunning(*one) ? *one : *two;
        QProcess& other = isRunning(*one) ? *two : *one;
        QCOMPARE(other.exitStatus(), QProcess::NormalExit);
        QCOMPARE(other.exitCode(), 0);
        QByteArray log;
        QTRY_VERIFY_WITH_TIMEOUT(
            (log += survivor.readAll()).contains("onNewConnection]VORNApp reopen!"), Patience);
        QVERIFY2(!log.contains("sharedMemory attach"),
                 "the remains of a crash were taken for an instance");
        survivor.kill();
        QVERIFY(survivor.waitForFinished(Patience));
    }
}

void tst_StartAndQuit::quitsCleanlyAHundredTimes()
{
    const ProgramHome home;
    DisplayEnd display(home);
    for (int round = 0; round < 100; ++round) {
        // The threads of the window system have to end in order as well, but they start slowly.
        const bool isOnScreen = round % 10 == 0;
        const auto program = home.start(isOnScreen ? u"xcb"_s : u"offscreen"_s);
        QLocalSocket* const connection = display.nextProgram();
        QVERIFY(connection);
        // Messages arrive while the program quits.
        for (int i = 0; i < 50; ++i)
            connection->write(
                "1 {\"cmd\":1,\"type\":2,\"volume\":" + QByteArray::number(i) +
                "}\n0 {\"cmd\":0,\"type\":2,\"isReady\":" + QByteArray::number(i % 2) + "}\n");
        connection->flush();
        sendSignal(*program, round % 3 == 0 ? SIGINT : SIGTERM);
        QVERIFY(program->waitForFinished(Patience));
        const QByteArray log = program->readAll();
        if (program->exitStatus() != QProcess::NormalExit || program->exitCode() != 0) {
            show(log);
            QFAIL(qPrintable(u"round %1 ended with %2"_s.arg(round).arg(program->exitCode())));
        }
        QCOMPARE(log.count("]thread start"), 3);
        QCOMPARE(log.count("]thread end"), 3);
        connection->deleteLater();
    }
}

/// The library of the window system calls exit() when its server goes.
void tst_StartAndQuit::endsWithItsScreen()
{
    for (int round = 0; round < 5; ++round) {
        VirtualScreen screen;
        ProgramHome home;
        home.set(u"DISPLAY"_s, screen.display());
        DisplayEnd display(home);
        QVERIFY(QFile::copy(u"/bin/sleep"_s, home.path() + "/BridgeAgent"_L1));
        QProcess companion;
        companion.start(home.path() + "/BridgeAgent"_L1, {u"1000"_s});
        const auto program = home.start(u"xcb"_s);
        QLocalSocket* const connection = display.nextProgram();
        QVERIFY(connection);
        connection->write("6 {\"cmd\":6,\"type\":2,\"byod_status\":2}\n");
        QTRY_VERIFY_WITH_TIMEOUT(home.registry().contains("disable_local_dev=1"), Patience);
        screen.kill();
        QVERIFY(screen.waitForFinished(Patience));
        QVERIFY(program->waitForFinished(Patience));
        const QByteArray log = program->readAll();
        if (program->exitStatus() != QProcess::NormalExit) {
            show(log);
            QFAIL(
                qPrintable(u"round %1 ended with signal %2"_s.arg(round).arg(program->exitCode())));
        }
        QVERIFY2(log.contains("[main]ended from outside, without quitting"), log.constData());
        QCOMPARE(log.count("]thread end"), 3);
        QVERIFY(home.registry().contains("disable_local_dev=0"));
        QVERIFY(companion.waitForFinished(Patience));
        QVERIFY(QDir(home.path()).entryList({u"*.dmp"_s}).isEmpty());
    }
}

void tst_StartAndQuit::survivesTheEndOfItsLogReader()
{
    const ProgramHome home;
    DisplayEnd display(home);
    const auto program = home.start(u"offscreen"_s);
    QLocalSocket* const connection = display.nextProgram();
    QVERIFY(connection);
    program->closeReadChannel(QProcess::StandardOutput);          // both streams are one
    connection->write("1 {\"cmd\":1,\"type\":2,\"volume\":3}\n"); // which is logged and answered
    QVERIFY(connection->waitForReadyRead(Patience));
    sendSignal(*program, SIGTERM);
    QVERIFY(program->waitForFinished(Patience));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 0);
}

void tst_StartAndQuit::endsWhileItShowsAnError()
{
    const ProgramHome home;
    QFile paths(home.programFolder() + "/qt.conf"_L1);
    QVERIFY(paths.open(QIODevice::WriteOnly));
    QVERIFY(paths.write(
                "[Paths]\nPrefix=/nowhere\nQmlImports=/nowhere\nQml2Imports=/nowhere\nPlugins=" +
                QLibraryInfo::path(QLibraryInfo::PluginsPath).toUtf8() + '\n') > 0);
    paths.close();
    const auto program = home.start(u"offscreen"_s);
    QByteArray log;
    QTRY_VERIFY_WITH_TIMEOUT(
        (log += program->readAll()).contains("QQmlApplicationEngine load error"), Patience);
    sendSignal(*program, SIGTERM);
    QVERIFY(program->waitForFinished(Patience));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 255);
}

void tst_StartAndQuit::logsItsLifeInOrder()
{
    const ProgramHome home;
    DisplayEnd display(home);
    const auto program = home.start(u"offscreen"_s);
    QVERIFY(display.nextProgram());
    sendSignal(*program, SIGTERM);
    QVERIFY(program->waitForFinished(Patience));
    const QByteArray log = program->readAll();

    const QByteArrayList expected{
        "[main]filepath:",
        "[main]filename:VORNApp",
        "[main]logpath:" + home.path().toUtf8() + "/state/VORNApp",
        "[main]file version:",
        "[main]product version:",
        "[main]commit:",
        "[LoadCustomFont]fontpath::/fonts/LatoRegular.ttf, fontname:LatoRegular",
        "[LoadCustomFont]Font family:Lato",
        "[LoadCustomFont]Loaded font family:Lato as LatoRegular",
        "[WindowManager::WindowManager]WindowManager",
        "[TaskQueue::TaskQueue]TaskQueue",
        "[UdpClient::UdpClient]UdpClient",
        "[UdpClient::bind]bound to port:49175",
        "/libPortalHub.so, version:unknown",
        "[main]VORNApp quit!!!",
        "[DeviceControl::~DeviceControl]~DeviceControl",
        "[UdpClient::~UdpClient]~UdpClient",
        "[TaskQueue::~TaskQueue]~TaskQueue",
        "[WindowManager::~WindowManager]~WindowManager",
    };
    qsizetype position = 0;
    for (const QByteArray& line : expected) {
        const qsizetype found = log.indexOf(line, position);
        QVERIFY2(found >= 0, (line + " is missing in\n" + log).constData());
        position = found;
    }
    QVERIFY2(!log.contains("[DBManager::initialize]"), log.constData());
}

QTEST_GUILESS_MAIN(tst_StartAndQuit)
#include "tst_StartAndQuit.moc"
