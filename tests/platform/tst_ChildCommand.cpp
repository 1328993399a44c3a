#include "platform/windows/ChildCommand.h"
#include "rig/HelperProcess.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QProcess>
#include <QTest>

#include <atomic>
#include <memory>
#include <stop_token>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The programs that Windows' services run. On Linux the code is compiled for this test only.
class tst_ChildCommand : public QObject
{
    Q_OBJECT

private slots:
    void endsToolsThatMustNotRunOn();
    void letsABegunToolFinish();

private:
    const QString m_helper = HelperProcess::path(u"platform_helper"_s);
};

void tst_ChildCommand::endsToolsThatMustNotRunOn()
{
    std::atomic_bool finished = true;
    QElapsedTimer sinceRequest;
    {
        const std::jthread worker([&](const std::stop_token& stop) {
            QProcess tool;
            finished = platform::runCommand(tool, m_helper, {u"wait"_s}, 60s, stop);
        });
        sinceRequest.start();
    } // requests the stop and joins
    QVERIFY(!finished);
    QVERIFY(sinceRequest.elapsed() < 10'000);

    QProcess slow;
    QVERIFY(!platform::runCommand(slow, m_helper, {u"wait"_s}, 100ms));
    QProcess missing;
    QVERIFY(!platform::runCommand(missing, u"C:/missing.exe"_s, {}, 20s));
    QProcess quick;
    QVERIFY(platform::runCommand(quick, m_helper, {u"?"_s}, 20s));
    QCOMPARE(quick.exitCode(), 2); // of an unknown mode
}

void tst_ChildCommand::letsABegunToolFinish()
{
    std::stop_source stop;
    stop.request_stop();
    auto owned = std::make_unique<QProcess>();
    QVERIFY(!platform::runCommand(*owned, m_helper, {u"wait"_s}, 60s, stop.get_token(),
                                  platform::Unfinished::LeaveRunning));
    const QPointer<QProcess> tool = owned.get();
    platform::leaveRunning(std::move(owned));
    QVERIFY(tool);
    const std::unique_ptr<QProcess> cleanup(tool);
    tool->closeWriteChannel(); // the work of the tool is done
    QVERIFY(tool->waitForFinished());
    QCOMPARE(tool->exitStatus(), QProcess::NormalExit);
    QCOMPARE(tool->exitCode(), 0);
}

QTEST_GUILESS_MAIN(tst_ChildCommand)
#include "tst_ChildCommand.moc"
