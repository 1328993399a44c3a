#include "bench/endurance/RunningProgram.h"

#include "app/LoadCustomFont.h"
#include "app/LogInit.h"
#include "bench/WaitUntil.h"
#include "platform/Folders.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QQmlContext>

using namespace Qt::StringLiterals;

namespace
{

template <typename Object>
Object* published(const QQmlEngine& engine, const QString& name)
{
    return qobject_cast<Object*>(engine.rootContext()->contextProperty(name).value<QObject*>());
}

} // namespace

RunningProgram::RunningProgram()
    : m_engine(std::make_unique<QQmlApplicationEngine>())
{
    InitLog(platform::programDataFolder(), platform::logBackupFolder(), u"VORNApp"_s, KeptLogFiles);
    LoadCustomFont(m_engine->rootContext(), u":/fonts/LatoRegular.ttf"_s, u"LatoRegular"_s);
    m_program = std::make_unique<Program>(QCoreApplication::applicationFilePath());
    m_program->publish(m_engine->rootContext());
    m_device = published<DeviceControl>(*m_engine, u"deviceControl"_s);
    m_network = published<NetworkManager>(*m_engine, u"network"_s);
    m_camera = published<CameraControl>(*m_engine, u"ptz"_s);
    m_engine->load(QUrl::fromLocalFile(QStringLiteral(VORN_QML_FOLDER "/Main.qml")));
    if (m_engine->rootObjects().isEmpty())
        qFatal("The main window cannot be loaded.");
    m_program->openChannel();
}

RunningProgram::~RunningProgram()
{
    m_program->closeChannel();
    m_program->windowManager().closeServer();
    m_engine.reset();
    QFontDatabase::removeAllApplicationFonts(); // which the next program loads again
}

void RunningProgram::startSetup() const
{
    for (QObject* const object : m_engine->rootObjects().constFirst()->findChildren<QObject*>()) {
        if (object->metaObject()->indexOfMethod("startSetup()") >= 0) {
            QMetaObject::invokeMethod(object, "startSetup");
            break;
        }
    }
    if (!monitor())
        qFatal("The monitor window cannot be opened.");
}

void RunningProgram::closeMonitor() const
{
    // From the event loop, as a click: an object that is deleted later outlives the loops that
    // start after the call.
    if (QQuickWindow* const window = monitor())
        QMetaObject::invokeMethod(window, &QWindow::close, Qt::QueuedConnection);
    bench::waitUntil([this] { return !monitor(); });
}

QQuickWindow* RunningProgram::monitor() const
{
    const QVariant window = m_engine->rootObjects().constFirst()->property("monitorWindow");
    return qobject_cast<QQuickWindow*>(window.value<QObject*>());
}
