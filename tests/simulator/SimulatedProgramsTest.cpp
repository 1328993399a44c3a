#include "launch/ProcessManager.h"
#include "launch/SystemProgramControl.h"
#include "launch/UpgradeControl.h"
#include "persistence/InstalledVersions.h"
#include "platform/Processes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr int Patience = 30'000;

QString installed()
{
    return installedVersionValue(u"version"_s);
}

bool isRunning(const QString& program)
{
    const auto outcome = platform::isImageRunning(program, 5s);
    return !outcome.finished || outcome.running;
}

} // namespace

/// The real upgrade steps against the simulated updater, which lies beside this test as it lies
/// beside the application.
class SimulatedProgramsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void upgradesWell();
    void upgradesBadly_data();
    void upgradesBadly();
    void endsWithItsHome();
    void zoomIsFound();

private:
    void order(const QByteArray& lines) const;
    [[nodiscard]] QStringList linesOf(const QString& name) const;
    [[nodiscard]] QStringList log() const { return linesOf(u"VORNApp/patchpilot.log"_s); }
    [[nodiscard]] bool hasLogged(const QString& start) const
    {
        const QStringList lines = log();
        return std::any_of(lines.begin(), lines.end(),
                           [&start](const QString& line) { return line.startsWith(start); });
    }
    void watch()
    {
        for (int pass = 0; pass < 5; ++pass)
            m_upgrade->watchdogPass();
    }

    std::unique_ptr<QTemporaryDir> m_home;
    SystemProgramControl m_programs;
    std::unique_ptr<UpgradeControl> m_upgrade;
    const QString m_update = u"update "_s + QCoreApplication::applicationFilePath();
};

void SimulatedProgramsTest::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", m_home->path().toUtf8());
    qputenv("XDG_DATA_HOME", m_home->path().toUtf8());
    QVERIFY(QDir(m_home->path()).mkpath(u"VORNApp"_s));
    m_programs.killProcess(u"PatchPilot.exe"_s); // of whatever ran before
    m_upgrade =
        std::make_unique<UpgradeControl>(m_programs, QCoreApplication::applicationFilePath(), 10ms);
}

void SimulatedProgramsTest::cleanup()
{
    m_upgrade.reset();
    if (QFile::exists(m_home->path()))
        order("behaviour=well\n"); // else it would come again
    m_programs.killProcess(u"PatchPilot.exe"_s);
    m_home.reset();
}

void SimulatedProgramsTest::order(const QByteArray& lines) const
{
    QFile file(m_home->filePath(u"VORNApp/patchpilot.ini"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(lines);
}

QStringList SimulatedProgramsTest::linesOf(const QString& name) const
{
    QFile file(m_home->filePath(name));
    return file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
               : QStringList();
}

void SimulatedProgramsTest::upgradesWell()
{
    order("installed=1.0\nseconds=0.1\n");
    watch();
    QTRY_COMPARE_WITH_TIMEOUT(installed(), u"1.0"_s, Patience);
    QVERIFY(installedVersionValue(u"newver"_s).isEmpty());
    order("installed=1.0\nseconds=0.1\noffer=2.0\n");
    QTRY_VERIFY_WITH_TIMEOUT(hasLogged(u"found 2.0"_s), Patience);
    QCOMPARE(installedVersionValue(u"newver"_s), u"2.0"_s);

    m_upgrade->start();
    QTRY_COMPARE_WITH_TIMEOUT(installed(), u"2.0"_s, Patience);
    QVERIFY(m_upgrade->isUpdating()); // until the program quits
    QTRY_COMPARE_WITH_TIMEOUT(log(),
                              (QStringList{u"background"_s, u"recorded 1.0"_s, u"found 2.0"_s,
                                           m_update, u"installed 2.0"_s}),
                              Patience);
}

void SimulatedProgramsTest::upgradesBadly_data()
{
    QTest::addColumn<QByteArray>("behaviour");
    QTest::addColumn<QString>("sign"); // in the log, before the time-out
    QTest::addColumn<bool>("finishes");
    QTest::newRow("never finishes") << "never"_ba << m_update << false;
    QTest::newRow("dies") << "dies"_ba << u"died"_s << false;
    QTest::newRow("finishes late") << "late"_ba << u"installing"_s << true;
    QTest::newRow("cannot be killed") << "unkillable"_ba << m_update << false;
}

/// An upgrade that goes wrong is given up; then the updater is in the background again, and a retry
/// with a better one succeeds.
void SimulatedProgramsTest::upgradesBadly()
{
    QFETCH(const QByteArray, behaviour);
    QFETCH(const QString, sign);
    QFETCH(const bool, finishes);
    const QByteArray orders = "installed=1.0\nseconds=0.5\noffer=2.0\nbehaviour=";
    order(orders + behaviour);
    watch();
    QTRY_VERIFY_WITH_TIMEOUT(hasLogged(u"found 2.0"_s), Patience);
    if (behaviour == "unkillable") {
        m_programs.killProcess(u"PatchPilot.exe"_s);
        QTRY_COMPARE_WITH_TIMEOUT(log().count(u"background"_s), 2, Patience);
    }

    m_upgrade->start();
    QTRY_VERIFY_WITH_TIMEOUT(hasLogged(sign), Patience);
    QVERIFY(m_upgrade->isUpdating());
    QCOMPARE(installed(), u"1.0"_s);
    m_upgrade->timeOut();
    QTRY_VERIFY_WITH_TIMEOUT(!m_upgrade->isUpdating(), Patience);
    const auto isBackAgain = [this] {
        watch();
        return log().count(u"background"_s) > 1;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isBackAgain(), Patience);
    if (finishes) {
        QTRY_COMPARE_WITH_TIMEOUT(installed(), u"2.0"_s, Patience);
        return;
    }
    QCOMPARE(installed(), u"1.0"_s);
    order(orders + "well");
    // A guard that has just looked would start an updater of its own beside the retry's.
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(u"UpdateInstaller.exe"_s), Patience);
    m_upgrade->start();
    QTRY_COMPARE_WITH_TIMEOUT(installed(), u"2.0"_s, Patience);
}

void SimulatedProgramsTest::endsWithItsHome()
{
    watch();
    QTRY_VERIFY_WITH_TIMEOUT(!installed().isEmpty(), Patience);
    QVERIFY(m_home->remove());
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(u"PatchPilot.exe"_s), Patience);
    QVERIFY(!QFile::exists(m_home->path()));
}

void SimulatedProgramsTest::zoomIsFound()
{
    const QString program = QCoreApplication::applicationDirPath() + "/apps/zoom"_L1;
    QCOMPARE(QProcess::execute(program, {u"--install"_s}), 0);
    QString found;
    QVERIFY(ProcessManager::findZoomPath(found));
    QCOMPARE(found, program);

    qputenv("QT_QPA_PLATFORM", "offscreen");
    QVERIFY(ProcessManager::startProcess(found));
    const auto started = [this] { return linesOf(u"zoom/started.log"_s).value(0); };
    QTRY_VERIFY_WITH_TIMEOUT(started().startsWith(u"started "_s), Patience);
}

QTEST_GUILESS_MAIN(SimulatedProgramsTest)
#include "SimulatedProgramsTest.moc"
