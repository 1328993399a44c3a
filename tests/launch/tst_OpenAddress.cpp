#include "launch/SystemMeetingLauncher.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QTest>
#include <QThread>
#include <QUrl>

#include <future>
#include <thread>

using namespace Qt::StringLiterals;

/// The launches run on the task thread, the browser is opened on the main one.
class tst_OpenAddress : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_QPA_PLATFORM", "offscreen"); }

public slots:
    void open(const QUrl& address);

private slots:
    void init();
    void cleanup();
    void opensOnTheMainThread();
    void opensWhenCalledThere();
    void givesUpWhenTheMainThreadIsBusy();
    void saysWhenItCannotOpen();

private:
    SystemMeetingLauncher m_launcher{[this] { return m_configured; }};
    QString m_configured;
    QStringList m_opened;
};

void tst_OpenAddress::open(const QUrl& address)
{
    QCOMPARE(QThread::currentThread(), qApp->thread());
    m_opened << address.toString();
}

void tst_OpenAddress::init()
{
    m_opened.clear();
    m_configured = u"vorn-test://meet.example/landing?hs=197&authuser=0"_s;
    QDesktopServices::setUrlHandler(u"vorn-test"_s, this, "open");
}

void tst_OpenAddress::cleanup()
{
    QDesktopServices::unsetUrlHandler(u"vorn-test"_s);
}

void tst_OpenAddress::opensOnTheMainThread()
{
    auto result = std::async(std::launch::async, [this] { return m_launcher.openGoogleMeeting(); });
    QTRY_COMPARE(m_opened, QStringList{m_configured});
    QCOMPARE(result.get(), false); // inverted: it was opened

    // The address is asked at each launch.
    m_configured = u"vorn-test://other.example/"_s;
    result = std::async(std::launch::async, [this] { return m_launcher.openGoogleMeeting(); });
    QTRY_COMPARE(m_opened.value(1), m_configured);
    result.get();
}

void tst_OpenAddress::opensWhenCalledThere()
{
    QCOMPARE(m_launcher.openGoogleMeeting(), false);
    QCOMPARE(m_opened, QStringList{m_configured});
}

void tst_OpenAddress::givesUpWhenTheMainThreadIsBusy()
{
    // As at the end of the program, where the main thread waits for the task thread.
    bool failed = false;
    std::thread([&] { failed = m_launcher.openGoogleMeeting(); }).join();
    QVERIFY(failed);
    QTRY_COMPARE(m_opened.size(), 1); // the request itself was not lost
}

void tst_OpenAddress::saysWhenItCannotOpen()
{
    m_configured.clear();
    QCOMPARE(m_launcher.openGoogleMeeting(), true);
    QVERIFY(m_opened.isEmpty());
}

QTEST_MAIN(tst_OpenAddress)
#include "tst_OpenAddress.moc"
