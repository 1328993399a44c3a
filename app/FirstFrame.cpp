#include "app/FirstFrame.h"

#include "app/WindowManager.h"

#include <QGuiApplication>
#include <QIcon>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto LongestWait = std::chrono::seconds(2);

} // namespace

FirstFrame::FirstFrame(QQmlApplicationEngine& engine, const QUrl& mainWindow)
    : m_engine(engine)
    , m_mainWindow(mainWindow)
    , m_pages(std::make_unique<QQmlComponent>(&engine, mainWindow, QQmlComponent::Asynchronous))
{
}

FirstFrame::~FirstFrame() = default;

void FirstFrame::serveLoader()
{
    QCoreApplication::sendPostedEvents();
}

bool FirstFrame::load(WindowManager& windows)
{
    m_engine.load(m_mainWindow);
    m_pages.reset();
    if (m_engine.rootObjects().isEmpty())
        return false;
    showIconsAfterwards(windows);
    return true;
}

void FirstFrame::showIconsAfterwards(WindowManager& windows) const
{
    const auto showIcons = [&windows] {
        if (QGuiApplication::windowIcon().isNull()) // for task bars that know no desktop entries
            QGuiApplication::setWindowIcon(QIcon(u":/images/VORNApp.ico"_s));
        windows.showTrayIcon();
    };
    const auto* const window = qobject_cast<QQuickWindow*>(m_engine.rootObjects().constFirst());
    QObject::connect(
        window, &QQuickWindow::frameSwapped, &windows, showIcons,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    QTimer::singleShot(LongestWait, &windows, showIcons);
}
