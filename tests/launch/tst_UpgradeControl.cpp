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

/// Records one word for each call: "kill", "keep", "start", or "wrong" for wrong arguments.
class RecordedPrograms : public ProgramControl
{
public:
    bool killProcess(const QString& name, const std::stop_token&) override
    {
        return note("kill", name);
    }
    void keepProcessAlive(const QString& name, const std::stop_token&) override
    {
        note("keep", name);
    }
    bool startProcess(const QString& name, const QStringList& arguments) override
    {
        const bool isUpgrade = arguments == QStringList{u"update"_s, u"/opt/VORNApp"_s};
        return note(isUpgrade ? "start" : "wrong", name);
    }

    /// Waits for this number of calls.
    bool waitFor(const QByteArray& word, int times)
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, 30s, [&] { return m_words.count(word) >= times; });
    }
    /// The words in order. Successive calls of the watchdog count as one.
    QString story()
    {
        const std::scoped_lock lock(m_mutex);
        return QString::fromLatin1(m_words.join(' '));
    }
    int looks()
    {
        const std::scoped_lock lock(m_mutex);
        return m_looks;
    }

private:
    // Every call fails, which must make no difference.
    bool note(const char* word, const QString& name)
    {
        const std::scoped_lock lock(m_mutex);
        const bool isLook = qstrcmp(word, "keep") == 0;
        m_looks += isLook ? 1 : 0;
        if (!isLook || m_words.isEmpty() || m_words.last() != word)
            m_words.append(name == "PatchPilot.exe"_L1 ? word : "wrong");
        m_changed.notify_all();
        return false;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    QByteArrayList m_words;
    int m_looks = 0;
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
    QCOMPARE(programs.looks(), 3);
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
    const auto starts = int(order.count('S'));
    QString expected = u"(keep )?"_s;
    for (const char step : order)
        expected += step == 'S' ? u"kill start "_s : u"kill (keep )?"_s;
    const QRegularExpression story(QRegularExpression::anchoredPattern(expected));

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
        const bool isDone =
            programs.waitFor("kill"_ba, int(order.size())) && programs.waitFor("start"_ba, starts);
        isOver = true;
        watchdog.join();
        QVERIFY(isDone);

        const bool isUpgrading = order.endsWith('S');
        QCOMPARE(control.isUpdating(), isUpgrading);
        const QString told = programs.story() + u' ';
        QVERIFY2(story.match(told).hasMatch(), qPrintable(told));
        const int looks = programs.looks();
        const auto isLookedAfter = [&] {
            for (int pass = 0; pass < 5; ++pass)
                control.watchdogPass();
            return programs.looks() > looks;
        };
        // The last step may not have released the updater yet.
        if (isUpgrading)
            QVERIFY(!isLookedAfter());
        else
            QTRY_VERIFY(isLookedAfter());
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
        QVERIFY(programs.waitFor("kill"_ba, 2) && programs.waitFor("start"_ba, 1));
        const bool isUpgrading = programs.story() == "kill kill start"_L1;
        QVERIFY(isUpgrading || programs.story() == "kill start kill"_L1);
        QCOMPARE(control.isUpdating(), isUpgrading);
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
        QVERIFY(programs.waitFor("kill"_ba, 1));
        // The watchdog does not wait either.
        timer.start();
        control.watchdogPass();
        QVERIFY(control.isUpdating());
    }
    QVERIFY(timer.elapsed() < 2000);
    QCOMPARE(programs.story(), u"kill"_s);
}

QTEST_GUILESS_MAIN(tst_UpgradeControl)
#include "tst_UpgradeControl.moc"
