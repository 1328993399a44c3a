#include "launch/ProcessManager.h"
#include "launch/UpgradeControl.h"
#include "persistence/InstalledVersions.h"
#include "platform/Processes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
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

/// The program's upgrade steps with the simulated updater, which lies in the folder of this test as
/// it does in the folder of the application.
class tst_SimulatedPrograms : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void failedUpgradeCanBeRepeated_data();
    void failedUpgradeCanBeRepeated();
    void updaterEndsWithItsFolder();

private:
    void configure(const QByteArray& lines) const;
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
    ProcessManager m_programs{QString()};
    std::unique_ptr<UpgradeControl> m_upgrade;
    const QString m_update = u"update "_s + QCoreApplication::applicationFilePath();
};

void tst_SimulatedPrograms::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", m_home->path().toUtf8());
    qputenv("XDG_DATA_HOME", m_home->path().toUtf8());
    QVERIFY(QDir(m_home->path()).mkpath(u"VORNApp"_s));
    m_programs.killProcess(u"PatchPilot.exe"_s, {}); // left by an earlier run
    m_upgrade =
        std::make_unique<UpgradeControl>(m_programs, QCoreApplication::applicationFilePath(), 10ms);
}

void tst_SimulatedPrograms::cleanup()
{
    m_upgrade.reset();
    if (QFile::exists(m_home->path()))
        configure("behaviour=well\n"); // stops the guard that restarts the updater
    m_programs.killProcess(u"PatchPilot.exe"_s, {});
    m_home.reset();
}

void tst_SimulatedPrograms::configure(const QByteArray& lines) const
{
    QFile file(m_home->filePath(u"VORNApp/patchpilot.ini"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(lines);
}

QStringList tst_SimulatedPrograms::linesOf(const QString& name) const
{
    QFile file(m_home->filePath(name));
    return file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
               : QStringList();
}

void tst_SimulatedPrograms::failedUpgradeCanBeRepeated_data()
{
    QTest::addColumn<QByteArray>("behaviour");
    QTest::addColumn<QString>("sign"); // log line before the time-out
    QTest::addColumn<bool>("finishes");
    QTest::newRow("never finishes") << "never"_ba << m_update << false;
    QTest::newRow("dies") << "dies"_ba << u"died"_s << false;
    QTest::newRow("finishes late") << "late"_ba << u"installing"_s << true;
    QTest::newRow("cannot be killed") << "unkillable"_ba << m_update << false;
}

/// After the time-out of a failed upgrade the updater runs in the background again, and a second
/// upgrade succeeds.
void tst_SimulatedPrograms::failedUpgradeCanBeRepeated()
{
    QFETCH(const QByteArray, behaviour);
    QFETCH(const QString, sign);
    QFETCH(const bool, finishes);
    const QByteArray settings = "installed=1.0\nseconds=0.5\noffer=2.0\nbehaviour=";
    configure(settings + behaviour);
    watch();
    QTRY_VERIFY_WITH_TIMEOUT(hasLogged(u"found 2.0"_s), Patience);
    if (behaviour == "unkillable") {
        m_programs.killProcess(u"PatchPilot.exe"_s, {});
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
    configure(settings + "well");
    // A running guard could start a second updater beside that of the next upgrade.
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(u"UpdateInstaller.exe"_s), Patience);
    m_upgrade->start();
    QTRY_COMPARE_WITH_TIMEOUT(installed(), u"2.0"_s, Patience);
}

void tst_SimulatedPrograms::updaterEndsWithItsFolder()
{
    watch();
    QTRY_VERIFY_WITH_TIMEOUT(!installed().isEmpty(), Patience);
    QVERIFY(m_home->remove());
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(u"PatchPilot.exe"_s), Patience);
    QVERIFY(!QFile::exists(m_home->path()));
}

QTEST_GUILESS_MAIN(tst_SimulatedPrograms)
#include "tst_SimulatedPrograms.moc"
