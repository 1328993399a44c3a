#include "app/FirstFrame.h"

#include "app/WindowManager.h"
#include "platform/ReducedMotion.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPointer>
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
    finishAfterwards(windows);
    return true;
}

void FirstFrame::finishAfterwards(WindowManager& windows)
{
    const auto finish = [this, &windows] {
        if (QGuiApplication::windowIcon().isNull()) // for task bars that know no desktop entries
            QGuiApplication::setWindowIcon(QIcon(u":/images/VORNApp.ico"_s));
        windows.showTrayIcon();
        followReducedMotion();
    };
    const auto* const window = qobject_cast<QQuickWindow*>(m_engine.rootObjects().constFirst());
    QObject::connect(
        window, &QQuickWindow::frameSwapped, &windows, finish,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    QTimer::singleShot(LongestWait, &windows, finish);
}

void FirstFrame::followReducedMotion()
{
    if (m_motion)
        return;
    const QPointer window(m_engine.rootObjects().constFirst());
    m_motion = std::make_unique<platform::ReducedMotion>([window](bool isWanted) {
        if (window)
            window->setProperty("reducedMotion", isWanted);
    });
}
