#include "app/WindowManager.h"
#include "support/LogCapture.h"

#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// A socket file as a crash leaves it: nobody listens behind it.
void leaveStaleSocket(const QString& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = path.toUtf8();
    memcpy(address.sun_path, name.constData(), std::size_t(name.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    QCOMPARE(::bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ::close(socket);
}

} // namespace

class tst_WindowManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void secondStartAsksForTheWindow();
    void peerThatSaysNothingCountsToo();
    void silentPeerDoesNotFreezeTheLoop();
    void takenNameLeavesNoTrayIcon();
    void staleSocketIsCleared();
    void onlyADoubleClickShows();
    void requestsArriveOnTheMainThread();

private:
    QTemporaryDir m_folder;
};

void tst_WindowManager::initTestCase()
{
    qputenv("TMPDIR", m_folder.path().toUtf8());
}

void tst_WindowManager::secondStartAsksForTheWindow()
{
    WindowManager manager;
    QSignalSpy shown(&manager, &WindowManager::requestShow);
    LogCapture log;
    QLocalSocket peer;
    peer.connectToServer(WindowManager::serverName());
    QVERIFY(peer.waitForConnected());
    peer.write("activate");
    QTRY_COMPARE(shown.count(), 1);
    QCOMPARE(shown.first(), QVariantList{true});
    QCOMPARE(log.take(), QStringList{u"I WindowManager::onNewConnection VORNApp reopen!"_s});
}

void tst_WindowManager::peerThatSaysNothingCountsToo()
{
    WindowManager manager;
    QSignalSpy shown(&manager, &WindowManager::requestShow);
    {
        QLocalSocket peer;
        peer.connectToServer(WindowManager::serverName());
        QVERIFY(peer.waitForConnected());
    }
    QTRY_COMPARE(shown.count(), 1);
}

void tst_WindowManager::silentPeerDoesNotFreezeTheLoop()
{
    WindowManager manager(300ms);
    QSignalSpy shown(&manager, &WindowManager::requestShow);
    QLocalSocket peer;
    peer.connectToServer(WindowManager::serverName());
    QVERIFY(peer.waitForConnected());
    int turns = 0;
    QTimer ticking;
    connect(&ticking, &QTimer::timeout, this, [&] { turns += shown.isEmpty() ? 1 : 0; });
    ticking.start(1ms);
    QTRY_COMPARE(shown.count(), 1);
    QVERIFY(turns > 10);
}

void tst_WindowManager::takenNameLeavesNoTrayIcon()
{
    WindowManager first;
    LogCapture log;
    WindowManager second;
    QVERIFY(log.contains(u"E WindowManager::WindowManager Cannot start VORNAppLocalServer!"_s));
    QSignalSpy hidden(&second, &WindowManager::requestShow);
    second.hideToTray();
    QVERIFY(!second.findChild<QSystemTrayIcon*>());
    QCOMPARE(hidden.first(), QVariantList{false});
    // The first one still answers, after the second one's question whether it does.
    QSignalSpy shown(&first, &WindowManager::requestShow);
    QTRY_COMPARE(shown.count(), 1);
    QLocalSocket peer;
    peer.connectToServer(WindowManager::serverName());
    peer.write("activate");
    QTRY_COMPARE(shown.count(), 2);
}

void tst_WindowManager::staleSocketIsCleared()
{
    leaveStaleSocket(m_folder.filePath(WindowManager::serverName()));
    LogCapture log;
    WindowManager manager;
    QCOMPARE(log.take(), QStringList{u"I WindowManager::WindowManager WindowManager"_s});
    manager.showTrayIcon();
    QVERIFY(manager.findChild<QSystemTrayIcon*>()->isVisible());
}

void tst_WindowManager::onlyADoubleClickShows()
{
    WindowManager manager;
    QSignalSpy shown(&manager, &WindowManager::requestShow);
    manager.showTrayIcon();
    auto* const icon = manager.findChild<QSystemTrayIcon*>();
    QVERIFY(!icon->icon().isNull());
    for (const auto reason :
         {QSystemTrayIcon::Trigger, QSystemTrayIcon::Context, QSystemTrayIcon::MiddleClick})
        emit icon->activated(reason);
    QVERIFY(shown.isEmpty());
    emit icon->activated(QSystemTrayIcon::DoubleClick);
    QCOMPARE(shown.count(), 1);
    QCOMPARE(icon->contextMenu()->actions().first()->text(), u"Quit"_s);
}

void tst_WindowManager::requestsArriveOnTheMainThread()
{
    WindowManager manager;
    QThread* emittedOn = nullptr;
    connect(
        &manager, &WindowManager::requestShowCheckRemote, &manager,
        [&] { emittedOn = QThread::currentThread(); }, Qt::DirectConnection);
    std::thread([&] { manager.askToShowCheckRemote(true); }).join();
    QTRY_COMPARE(emittedOn, QThread::currentThread());
}

QTEST_MAIN(tst_WindowManager)
#include "tst_WindowManager.moc"
