#include "launch/ProcessManager.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QTest>
#include <QThread>
#include <QUrl>

#include <future>
#include <thread>

using namespace Qt::StringLiterals;

/// Google Meet opens in the browser on the main thread, whichever thread launches it.
class tst_OpenAddress : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_QPA_PLATFORM", "offscreen"); }

public slots:
    void open(const QUrl& address);

private slots:
    void initTestCase() { QDesktopServices::setUrlHandler(u"vorn-test"_s, this, "open"); }
    void init() { m_opened.clear(); }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(u"vorn-test"_s); }
    void opensOnTheMainThread();
    void stopsWaitingForABusyMainThread();
    void reportsAnAddressThatCannotBeOpened();

private:
    const QString m_address = u"vorn-test://meet.example/landing?hs=197&authuser=0"_s;
    ProcessManager m_launcher{m_address};
    QStringList m_opened;
};

void tst_OpenAddress::open(const QUrl& address)
{
    QCOMPARE(QThread::currentThread(), qApp->thread());
    m_opened << address.toString();
}

void tst_OpenAddress::opensOnTheMainThread()
{
    auto result = std::async(std::launch::async, [this] { return m_launcher.openGoogleMeeting(); });
    QTRY_COMPARE(m_opened, QStringList{m_address});
    QCOMPARE(result.get(), false); // inverted: it was opened
    QCOMPARE(m_launcher.openGoogleMeeting(), false);
    QCOMPARE(m_opened.size(), 2);
}

void tst_OpenAddress::stopsWaitingForABusyMainThread()
{
    // At the end of the program the main thread waits for the task thread.
    bool failed = false;
    std::thread([&] { failed = m_launcher.openGoogleMeeting(); }).join();
    QVERIFY(failed);
    QTRY_COMPARE(m_opened.size(), 1); // the request itself is not lost
}

void tst_OpenAddress::reportsAnAddressThatCannotBeOpened()
{
    QCOMPARE(ProcessManager({}).openGoogleMeeting(), true);
    QVERIFY(m_opened.isEmpty());
}

QTEST_MAIN(tst_OpenAddress)
#include "tst_OpenAddress.moc"
