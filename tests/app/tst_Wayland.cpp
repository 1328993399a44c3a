#include "ProgramRun.h"

#include <QRegularExpression>
#include <QStandardPaths>

#include <csignal>

using namespace Qt::StringLiterals;

namespace
{

constexpr int Patience = 30000;

/// A compositor whose screen is a window of the size of the program's; null if it does not start.
std::unique_ptr<QProcess> startCompositor(ProgramHome& home)
{
    QFile settings(home.path() + "/weston.ini"_L1);
    if (settings.open(QIODevice::WriteOnly))
        settings.write("[shell]\nlocking=false\npanel-position=none\n");
    settings.close();
    auto compositor = std::make_unique<QProcess>();
    compositor->setProcessEnvironment(home.environment());
    compositor->start(u"weston"_s, {u"--config="_s + settings.fileName(),
                                    u"--backend=x11-backend.so"_s, u"--use-pixman"_s,
                                    u"--width=968"_s, u"--height=666"_s, u"--socket=wayland"_s});
    home.set(u"WAYLAND_DISPLAY"_s, u"wayland"_s);
    const QString socket = home.path() + "/run/wayland"_L1;
    return QTest::qWaitFor([&] { return QFile::exists(socket); }, Patience) ? std::move(compositor)
                                                                            : nullptr;
}

} // namespace

/// Uses the program on a Wayland compositor, whose screen is a window of an X server.
class tst_Wayland : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void compositorMovesTheWindow();
    void endsWithItsCompositor();
};

void tst_Wayland::initTestCase()
{
    if (QStandardPaths::findExecutable(u"weston"_s).isEmpty())
        QSKIP("weston is not installed");
}

/// The screen has the size of the window, which is therefore at its origin.
void tst_Wayland::compositorMovesTheWindow()
{
    VirtualScreen screen({u"-screen"_s, u"0"_s, u"968x666x24"_s});
    ProgramHome home;
    home.set(u"DISPLAY"_s, screen.display());
    DisplayEnd display(home);
    const auto compositor = startCompositor(home);
    QVERIFY(compositor);
    home.set(u"WAYLAND_DEBUG"_s, u"1"_s);
    const auto program = home.start(u"wayland"_s);
    QVERIFY(display.nextProgram());
    QProcess drag;
    drag.setProcessEnvironment(home.environment());
    QString log;
    const auto isMoved = [&] {
        // A press before the window is there has no effect, so it is repeated.
        drag.start(u"xdotool"_s, {u"mousemove"_s, u"500"_s, u"20"_s, u"mousedown"_s, u"1"_s,
                                  u"mousemove_relative"_s, u"9"_s, u"9"_s, u"mousemove_relative"_s,
                                  u"9"_s, u"9"_s, u"mouseup"_s, u"1"_s});
        drag.waitForFinished(Patience);
        log += QString::fromLocal8Bit(program->readAll());
        static const QRegularExpression s_request(u"xdg_toplevel[@#]\\d+\\.move\\("_s);
        return log.contains(s_request);
    };
    QTRY_VERIFY_WITH_TIMEOUT(isMoved(), Patience);
    ::kill(static_cast<pid_t>(program->processId()), SIGTERM);
    QVERIFY(program->waitForFinished(Patience));
    QCOMPARE(program->exitCode(), 0);
    compositor->terminate();
    QVERIFY(compositor->waitForFinished(Patience));
}

/// Qt's plugin calls _exit(), which runs no exit handlers.
void tst_Wayland::endsWithItsCompositor()
{
    VirtualScreen screen;
    ProgramHome home;
    home.set(u"DISPLAY"_s, screen.display());
    DisplayEnd display(home);
    const auto compositor = startCompositor(home);
    QVERIFY(compositor);
    const auto program = home.start(u"wayland"_s);
    QLocalSocket* const connection = display.nextProgram();
    QVERIFY(connection);
    connection->write("6 {\"cmd\":6,\"type\":2,\"byod_status\":2}\n");
    QTRY_VERIFY_WITH_TIMEOUT(home.registry().contains("disable_local_dev=1"), Patience);
    compositor->kill();
    QVERIFY(compositor->waitForFinished(Patience));
    QVERIFY(program->waitForFinished(Patience));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QVERIFY(home.registry().contains("disable_local_dev=0"));
}

QTEST_GUILESS_MAIN(tst_Wayland)
#include "tst_Wayland.moc"
