#include "launch/ProgramControl.h"
#include "launch/UpgradeControl.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <condition_variable>
#include <mutex>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// Records the calls as letters: W for the watchdog's, several in a row as one, K for a kill, S for
/// a start, ? for wrong arguments.
class RecordedPrograms : public ProgramControl
{
public:
    bool killProcess(const QString& name, const std::stop_token&) override
    {
        return note('K', name);
    }
    void keepProcessAlive(const QString& name, const std::stop_token&) override
    {
        ++watchdogCalls;
        note('W', name);
    }
    bool startProcess(const QString& name, const QStringList& arguments,
                      const std::stop_token&) override
    {
        return note(arguments == QStringList{u"update"_s, u"/opt/VORNApp"_s} ? 'S' : '?', name);
    }

    /// Waits for this number of calls.
    bool waitFor(char call, int times)
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, 30s, [&] { return m_calls.count(call) >= times; });
    }
    QByteArray calls()
    {
        const std::scoped_lock lock(m_mutex);
        return m_calls;
    }

    std::atomic<int> watchdogCalls = 0;

private:
    // Every call fails, which must make no difference.
    bool note(char call, const QString& name)
    {
        const std::scoped_lock lock(m_mutex);
        if (call != 'W' || !m_calls.endsWith('W'))
            m_calls += name == "PatchPilot.exe"_L1 ? call : '?';
        m_changed.notify_all();
        return false;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    QByteArray m_calls;
};

} // namespace

class tst_UpgradeControl : public QObject
{
    Q_OBJECT

private slots:
    void watchesOnEveryFifthPass();
    void everyOrderOfStartAndTimeOut_data();
    void everyOrderOfStartAndTimeOut();
    void startAndTimeOutAtOnce();
    void endingDoesNotWaitForThePause();
};

void tst_UpgradeControl::watchesOnEveryFifthPass()
{
    RecordedPrograms programs;
    UpgradeControl control(programs, u"/opt/VORNApp"_s);
    for (int pass = 1; pass <= 11; ++pass)
        control.watchdogPass();
    QCOMPARE(programs.watchdogCalls.load(), 3);
}

void tst_UpgradeControl::everyOrderOfStartAndTimeOut_data()
{
    QTest::addColumn<QByteArray>("order"); // S: start, T: time-out
    for (int length = 1; length <= 3; ++length) {
        for (int bits = 0; bits < 1 << length; ++bits) {
            QByteArray order;
            for (int i = 0; i < length; ++i)
                order += (bits >> i & 1) != 0 ? 'T' : 'S';
            QTest::newRow(order.constData()) << order;
        }
    }
}

/// The watchdog runs without pauses meanwhile. It restarts the updater at first and after a
/// time-out only, and never between the kill and the start of an upgrade.
void tst_UpgradeControl::everyOrderOfStartAndTimeOut()
{
    QFETCH(const QByteArray, order);
    QString expected = u"W?"_s;
    for (const char step : order)
        expected += step == 'S' ? u"KS"_s : u"KW?"_s;
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(expected));

    for (int round = 0; round < 100; ++round) {
        RecordedPrograms programs;
        UpgradeControl control(programs, u"/opt/VORNApp"_s, std::chrono::milliseconds(round % 4));
        std::atomic_bool isOver = false;
        std::thread watchdog([&] {
            while (!isOver)
                control.watchdogPass();
        });
        for (const char step : order)
            step == 'S' ? control.start() : control.timeOut();
        const bool isDone = programs.waitFor('K', int(order.size())) &&
                            programs.waitFor('S', int(order.count('S')));
        isOver = true;
        watchdog.join();
        QVERIFY(isDone);

        const bool isUpgrading = order.endsWith('S');
        QCOMPARE(control.isUpdating(), isUpgrading);
        const QByteArray calls = programs.calls();
        QVERIFY2(pattern.match(QString::fromLatin1(calls)).hasMatch(), calls.constData());
        const auto isWatched = [&, before = programs.watchdogCalls.load()] {
            for (int pass = 0; pass < 5; ++pass)
                control.watchdogPass();
            return programs.watchdogCalls > before;
        };
        // The last step may not have released the updater yet.
        if (isUpgrading)
            QVERIFY(!isWatched());
        else
            QTRY_VERIFY(isWatched());
    }
}

void tst_UpgradeControl::startAndTimeOutAtOnce()
{
    for (int round = 0; round < 100; ++round) {
        RecordedPrograms programs;
        UpgradeControl control(programs, u"/opt/VORNApp"_s, 0ms);
        std::thread page([&] { control.start(); });
        control.timeOut();
        page.join();
        QVERIFY(programs.waitFor('K', 2) && programs.waitFor('S', 1));
        QCOMPARE(programs.calls(), control.isUpdating() ? "KKS" : "KSK");
    }
}

void tst_UpgradeControl::endingDoesNotWaitForThePause()
{
    RecordedPrograms programs;
    QElapsedTimer timer;
    {
        UpgradeControl control(programs, u"/opt/VORNApp"_s, 1h);
        control.start();
        control.timeOut();
        QVERIFY(programs.waitFor('K', 1));
        // The watchdog does not wait either.
        timer.start();
        control.watchdogPass();
        QVERIFY(control.isUpdating());
    }
    QVERIFY(timer.elapsed() < 2000);
    QCOMPARE(programs.calls(), "K");
}

QTEST_GUILESS_MAIN(tst_UpgradeControl)
#include "tst_UpgradeControl.moc"
