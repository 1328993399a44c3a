#include "app/WindowManager.h"
#include "support/LogCapture.h"

#include <QApplication>
#include <QLabel>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

std::unique_ptr<QLocalSocket> connectedPeer()
{
    auto peer = std::make_unique<QLocalSocket>();
    peer->connectToServer(WindowManager::serverName());
    peer->waitForConnected();
    return peer;
}

} // namespace

class tst_WindowManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showsTheWindowForASecondStart();
    void doesNotBlockTheLoopForASilentPeer();
    void showsTheWindowOnADoubleClickOnly();
    void explainsTheFirstCloseOnly();
    void emitsRequestsOnTheMainThread();

private:
    QTemporaryDir m_folder;
};

void tst_WindowManager::initTestCase()
{
    qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8());
}

void tst_WindowManager::showsTheWindowForASecondStart()
{
    WindowManager manager;
    QSignalSpy shown(&manager, &WindowManager::requestShow);
    LogCapture log;
    auto peer = connectedPeer();
    peer->write("activate token-1");
    QTRY_COMPARE(shown.count(), 1);
    QCOMPARE(shown.first(), QVariantList{true});
    QCOMPARE(log.take(), QStringList{u"I WindowManager::onNewConnection VORNApp reopen!"_s});
    QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), "token-1"); // for the next activation of a window
    QTRY_COMPARE(peer->bytesAvailable(), 5);              // the answer
    connectedPeer().reset();                              // a peer that sends nothing counts, too
    QTRY_COMPARE(shown.count(), 2);
}

void tst_WindowManager::doesNotBlockTheLoopForASilentPeer()
{
    WindowManager manager(300ms);
    QSignalSpy shown(&manager, &WindowManager::requestShow);
    const auto peer = connectedPeer();
    int turns = 0;
    QTimer ticking;
    connect(&ticking, &QTimer::timeout, this, [&] { turns += shown.isEmpty() ? 1 : 0; });
    ticking.start(1ms);
    QTRY_COMPARE(shown.count(), 1);
    QVERIFY(turns > 10);
}

void tst_WindowManager::showsTheWindowOnADoubleClickOnly()
{
    WindowManager manager;
    QSignalSpy shown(&manager, &WindowManager::requestShow);
    manager.showTrayIcon();
    QTRY_VERIFY(manager.findChild<QSystemTrayIcon*>());
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

void tst_WindowManager::explainsTheFirstCloseOnly()
{
    WindowManager manager;
    QSignalSpy explained(&manager, &WindowManager::closeExplained);
    manager.showTrayIcon();
    QTRY_VERIFY(manager.findChild<QSystemTrayIcon*>());
    const auto isShown = [] {
        const QWidgetList widgets = QApplication::allWidgets();
        return std::ranges::any_of(widgets, [](const QWidget* widget) {
            const auto* const label = qobject_cast<const QLabel*>(widget);
            return label && label->isVisible() && label->text().startsWith("Double-click"_L1);
        });
    };
    manager.hideToTray();
    QTRY_VERIFY(isShown());
    manager.hideToTray();
    QCOMPARE(explained.count(), 1);
}

void tst_WindowManager::emitsRequestsOnTheMainThread()
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
