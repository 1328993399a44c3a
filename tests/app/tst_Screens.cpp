#include "ProgramRun.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace
{

constexpr int Patience = 30000;

} // namespace

/// Uses the program on two screens of different scale.
class tst_Screens : public QObject
{
    Q_OBJECT

private slots:
    void windowKeepsItsSizeWhenItsScreenVanishes();

private:
    QString run(const QString& program, const QStringList& arguments) const;

    ProgramHome m_home;
};

QString tst_Screens::run(const QString& program, const QStringList& arguments) const
{
    QProcess process;
    process.setProcessEnvironment(m_home.environment());
    process.start(program, arguments);
    process.waitForFinished(Patience);
    return QString::fromLocal8Bit(process.readAll());
}

void tst_Screens::windowKeepsItsSizeWhenItsScreenVanishes()
{
    VirtualScreen screens({u"-noreset"_s, u"-screen"_s, u"0"_s, u"3000x1400x24"_s});
    m_home.set(u"DISPLAY"_s, screens.display());
    const QString near = u"1000/300x800/200+0+0"_s;
    const QString far = u"2000/300x1400/200+1000+0"_s;
    run(u"xrandr"_s, {u"--setmonitor"_s, u"near"_s, near, u"screen"_s});
    run(u"xrandr"_s, {u"--setmonitor"_s, u"far"_s, far, u"none"_s});
    QVERIFY2(run(u"xrandr"_s, {u"--listmonitors"_s}).contains(u"far"_s), "is xrandr installed?");
    m_home.set(u"QT_SCREEN_SCALE_FACTORS"_s, u"near=1;far=2"_s);
    DisplayEnd display(m_home);
    const auto program = m_home.start(u"xcb"_s);
    QVERIFY(display.nextProgram());
    const auto place = [this](const QStringList& then) {
        return run(u"xdotool"_s, QStringList{u"search"_s, u"--onlyvisible"_s, u"--sync"_s,
                                             u"--name"_s, u"^VORNApp$"_s} +
                                     then + QStringList{u"getwindowgeometry"_s});
    };
    QTRY_VERIFY_WITH_TIMEOUT(
        place({u"windowmove"_s, u"1020"_s, u"10"_s}).contains(u"Geometry: 1936x1332"_s), Patience);
    run(u"xrandr"_s, {u"--delmonitor"_s, u"far"_s});
    QTRY_VERIFY2_WITH_TIMEOUT(place({}).contains(u"Position: 32,"_s) &&
                                  place({}).contains(u"Geometry: 968x666"_s),
                              qPrintable(place({})), Patience);
    ::kill(static_cast<pid_t>(program->processId()), SIGTERM);
    QVERIFY(program->waitForFinished(Patience));
    QCOMPARE(program->exitCode(), 0);
}

QTEST_GUILESS_MAIN(tst_Screens)
#include "tst_Screens.moc"
