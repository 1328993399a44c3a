#include "account/ProxyLookup.h"
#include "app/ExitGuard.h"
#include "app/FirstFrame.h"
#include "app/LoadCustomFont.h"
#include "app/LogInit.h"
#include "app/Program.h"
#include "app/QtMessages.h"
#include "app/Revision.h"
#include "app/SingleInstance.h"
#include "app/Translations.h"
#include "logging/Log.h"
#include "platform/BrokenPipes.h"
#include "platform/CrashHandler.h"
#include "platform/Folders.h"
#include "platform/TerminationSignals.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QQmlApplicationEngine>
#include <QtQml>

#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

// Generated with the QML module. Without this reference the linker would drop it.
void qml_register_types_VORNApp();

namespace
{

constexpr int KeptLogFiles = 5;
constexpr int LoadFailure = -1;

void reportCrashLine(const char* text)
{
    Log::error("GenerateDump") << text;
}

QString errorTitle()
{
    //: Title of a message box.
    return QCoreApplication::translate("main", "Error");
}

/// Warns that a running instance does not answer. No application object exists at this point, and a
/// message box needs one.
void warnUnreachable(int& argc, char** argv)
{
    const QApplication app(argc, argv);
    Translations translations;
    translations.install(QLocale::system().uiLanguages());
    QMessageBox::warning(
        nullptr, errorTitle(),
        QCoreApplication::translate("main", "Existing VORNApp cannot be connected"));
}

void logProgram(const QString& appPath, const QString& fileName)
{
    Log::info("main") << "filepath:" << appPath;
    Log::info("main") << "filename:" << fileName;
    Log::info("main") << "logpath:" << platform::programDataFolder();
    Log::info("main") << "file version:" << readFileVersion(fileName);
    Log::info("main") << "product version:" << readProductVersion(fileName);
    Log::info("main") << "commit:" << sourceRevision();
}

/// A second start brings the box to the front, as it would the window.
void showLoadError(const WindowManager& windows)
{
    QMessageBox box(QMessageBox::Critical, errorTitle(),
                    QCoreApplication::translate("main", "QQmlApplicationEngine load error!"),
                    QMessageBox::Ok);
    QObject::connect(&windows, &WindowManager::requestShow, &box, [&box] {
        box.raise();
        box.activateWindow();
    });
    box.exec();
}

int run(int& argc, char** argv, SingleInstance& instance)
{
    const QFileInfo executable(QString::fromLocal8Bit(argv[0]));
    const QString appPath = executable.absolutePath();
    const QString fileName = executable.fileName();
    InitLog(platform::programDataFolder(), platform::logBackupFolder(), fileName, KeptLogFiles);
    logQtMessages([&instance] { instance.release(); });
    platform::installCrashHandler(reportCrashLine);

    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::RoundPreferFloor);
    const QApplication app(argc, argv);
    Translations translations;
    translations.install(QLocale::system().uiLanguages());
    const platform::TerminationSignals signalsToQuit([] { QCoreApplication::exit(); });
    // Hiding to the tray closes the last window without ending the program.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // Wayland takes the icon of a window from the desktop entry.
    QGuiApplication::setDesktopFileName(u"com.vorn.VORNApp"_s);
    logProgram(appPath, fileName);

    qml_register_types_VORNApp();
    auto engine = std::make_unique<QQmlApplicationEngine>();
    FirstFrame firstFrame(*engine, QUrl(u"qrc:/Main.qml"_s));
    LoadCustomFont(engine->rootContext(), u":/fonts/LatoRegular.ttf"_s, u"LatoRegular"_s);
    preferTypographicLineHeight();
    firstFrame.serveLoader();
    Program program(QCoreApplication::applicationFilePath());
    program.publish(engine->rootContext());
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &app, [&] {
        Log::info("main") << "VORNApp quit!!!";
        // Close the server before the mark of the running instance is released: closing it
        // afterwards would delete the socket file of the next instance.
        program.windowManager().closeServer();
        instance.release();
    });

    if (!firstFrame.load(program.windowManager())) {
        Log::error("main") << "QQmlApplicationEngine load error";
        showLoadError(program.windowManager());
        engine.reset(); // before the objects in its context
        return LoadFailure;
    }
    program.openChannel();
    const ExitGuard exitGuard([&program] {
        Log::error("main") << "ended from outside, without quitting";
        program.endThreads();
    });
    const int exitCode = QApplication::exec();

    program.closeChannel();
    engine.reset();
    return exitCode;
}

} // namespace

int main(int argc, char* argv[])
{
    platform::ignoreBrokenPipes();
    SingleInstance instance(u"VORNAppUniqueKey"_s, WindowManager::serverName());
    // For installers, which cannot replace the files of a running program.
    if (argc == 2 && qstrcmp(argv[1], "--quit") == 0)
        return instance.endRunning() ? EXIT_SUCCESS : EXIT_FAILURE;
    switch (instance.start()) {
    case SingleInstance::Outcome::First:
        break;
    case SingleInstance::Outcome::HandedOver:
        return 0;
    case SingleInstance::Outcome::Unreachable:
        warnUnreachable(argc, argv);
        return 0;
    }
    const int exitCode = run(argc, argv, instance);
    if (isProxyLookupRunning()) {
        instance.release();
        std::_Exit(exitCode);
    }
    return exitCode;
}
