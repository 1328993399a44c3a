#include "app/WindowManager.h"

#include "app/SingleInstance.h"
#include "logging/Log.h"
#include "platform/DesktopNotification.h"
#include "platform/InstanceObjects.h"
#include "platform/TrayKeys.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QLocalSocket>
#include <QTimer>

using namespace Qt::StringLiterals;
using platform::SystemTray;

namespace
{

constexpr int AnswerTimeout = 500;   // ms
constexpr int WriteTimeout = 100;    // ms
constexpr int LongestRequest = 1024; // bytes

} // namespace

const QString& WindowManager::serverName()
{
    static const QString s_name = platform::instanceServerName(u"VORNAppLocalServer"_s);
    return s_name;
}

WindowManager::WindowManager(std::chrono::milliseconds peerWait)
    : m_peerWait(peerWait)
    , m_localServer(new QLocalServer(this))
{
    Log::info("WindowManager::WindowManager") << "WindowManager";
    if (!listen()) {
        Log::error("WindowManager::WindowManager") << "Cannot start VORNAppLocalServer!";
        return;
    }
    connect(m_localServer, &QLocalServer::newConnection, this, &WindowManager::onNewConnection);
}

WindowManager::~WindowManager()
{
    Log::info("WindowManager::~WindowManager") << "~WindowManager";
}

/// A socket file without a listener is left over from a crash.
bool WindowManager::listen()
{
    if (isServerAnswering())
        return false;
    QLocalServer::removeServer(serverName());
    return m_localServer->listen(serverName());
}

bool WindowManager::isServerAnswering() const
{
    QLocalSocket probe;
    probe.connectToServer(serverName());
    return probe.waitForConnected(AnswerTimeout);
}

void WindowManager::createTrayIcon(SystemTray::Opening opening)
{
    m_opening = opening;
    m_trayIcon = new QSystemTrayIcon(QIcon(u":/images/VORNApp.ico"_s), this);
    m_trayIcon->setToolTip(u"VORNApp"_s); // also the icon's name in the settings of Windows
    m_trayMenu = std::make_unique<QMenu>();
    //: Entry of the menu of the tray icon: ends the program.
    auto* const quit = new QAction(tr("Quit"), this);
    m_trayMenu->addAction(quit);
    m_trayIcon->setContextMenu(m_trayMenu.get());
    connect(quit, &QAction::triggered, qApp, &QCoreApplication::quit);
    connect(m_trayIcon, &QSystemTrayIcon::activated, this, &WindowManager::onTrayIconActivated);
    m_trayIcon->show();
    platform::watchTrayKeys();
}

void WindowManager::showTrayIcon()
{
    if (!m_tray && m_localServer->isListening())
        m_tray = std::make_unique<SystemTray>(
            [this](SystemTray::Opening opening) { createTrayIcon(opening); });
    if (m_trayIcon)
        m_trayIcon->setVisible(true);
}

void WindowManager::closeServer()
{
    m_localServer->close();
    // Without an answer these starts know that they have to run themselves.
    for (auto* const socket : m_localServer->findChildren<QLocalSocket*>()) {
        socket->disconnect(this);
        socket->abort();
    }
}

/// Shows the window when the peer has sent its bytes or disconnected; before that the peer may
/// still have the focus. The event loop is not blocked.
void WindowManager::onNewConnection()
{
    while (QLocalSocket* const socket = m_localServer->nextPendingConnection())
        reopenAfter(socket);
}

void WindowManager::reopenAfter(QLocalSocket* socket)
{
    const auto reopen = [this, socket] {
        socket->disconnect(this);
        socket->deleteLater();
        const QByteArray request = socket->read(LongestRequest);
        if (request.split(' ').constFirst() == "quit") {
            quitFor(socket);
            return;
        }
        platform::takeForegroundRight(request.mid(qstrlen("activate ")));
        socket->write("shown"); // tells the second start that its request is not lost
        socket->flush();
        Log::info("WindowManager::onNewConnection") << "VORNApp reopen!";
        emit requestShow(true);
    };
    if (socket->bytesAvailable() > 0 || socket->state() != QLocalSocket::ConnectedState) {
        reopen();
        return;
    }
    auto* const patience = new QTimer(socket);
    patience->setSingleShot(true);
    connect(socket, &QLocalSocket::readyRead, this, reopen);
    connect(socket, &QLocalSocket::disconnected, this, reopen);
    connect(patience, &QTimer::timeout, socket, &QLocalSocket::disconnectFromServer);
    patience->start(m_peerWait);
}

void WindowManager::quitFor(QLocalSocket* socket)
{
    Log::info("WindowManager::quitFor") << "asked to quit";
    socket->write(SingleInstance::QuitAnswer +
                  QByteArray::number(QCoreApplication::applicationPid()));
    socket->waitForBytesWritten(WriteTimeout); // the server is closed next
    QCoreApplication::exit();
}

/// Some trays report no double click. There one activation opens the window, as is usual on them.
void WindowManager::onTrayIconActivated(QSystemTrayIcon::ActivationReason reason)
{
    const bool isActivation =
        reason == QSystemTrayIcon::Trigger &&
        (m_opening == SystemTray::Opening::Activation || platform::isTrayKeyPress());
    if (reason != QSystemTrayIcon::DoubleClick && !isActivation)
        return;
    Log::info("WindowManager::onTrayIconActivated")
        << (isActivation ? "tray activation" : "tray double click");
    emit requestShow(true);
}

void WindowManager::hideToTray()
{
    Log::info("WindowManager::hideToTray") << "hide to tray";
    showTrayIcon();
    emit requestShow(false);
    explainClose();
}

/// Shows how to come back, once. A desktop without a tray and without notifications shows nothing,
/// and the next close tries again.
void WindowManager::explainClose()
{
    if (m_closeExplained)
        return;
    //: Title of a message of the tray, shown when the window is closed for the first time.
    const QString title = tr("VORNApp is still running");
    const auto remember = [this] {
        m_closeExplained = true;
        emit closeExplained();
    };
    if (!m_trayIcon) {
        //: Message shown when the window is closed for the first time, on a desktop without a tray.
        platform::notifyDesktop(title, tr("Start VORNApp again to open the window."), this,
                                remember);
        return;
    }
    const QString wayBack = m_opening == SystemTray::Opening::Activation
                                ? tr("Click its icon in the tray to open the window again.")
                                : tr("Double-click its icon in the tray to open the window again.");
    m_trayIcon->showMessage(title, wayBack, m_trayIcon->icon());
    remember();
}

void WindowManager::askToShow(bool show)
{
    QMetaObject::invokeMethod(this, [this, show] { emit requestShow(show); });
}

void WindowManager::askToShowCheckRemote(bool show)
{
    QMetaObject::invokeMethod(this, [this, show] { emit requestShowCheckRemote(show); });
}
