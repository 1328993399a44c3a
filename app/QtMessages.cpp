#include "app/QtMessages.h"

#include "app/ExitGuard.h"
#include "logging/Log.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

std::function<void()> g_cleanUp; // main thread only

Log::Severity severityOf(QtMsgType type)
{
    switch (type) {
    case QtWarningMsg:
        return Log::Severity::Warning;
    case QtCriticalMsg:
    case QtFatalMsg:
        return Log::Severity::Error;
    case QtDebugMsg:
    case QtInfoMsg:
        break;
    }
    return Log::Severity::Info;
}

void logQtMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const bool hasCategory = context.category && std::strcmp(context.category, "default") != 0;
    Log::Message(severityOf(type), hasCategory ? context.category : "Qt", "Qt", 0) << text;
    // Qt's next call is _exit(), which runs no exit handlers.
    if (type == QtWarningMsg && text.startsWith("The Wayland connection "_L1))
        ExitGuard::leaveNow();
    const bool isStarting = QCoreApplication::startingUp() && !QCoreApplication::closingDown();
    if (type != QtFatalMsg || !isStarting)
        return;
    std::fputs("VORNApp cannot start: there is no display to show its window on.\n", stderr);
    g_cleanUp();
    std::_Exit(EXIT_FAILURE);
}

} // namespace

void logQtMessages(std::function<void()> cleanUp)
{
    g_cleanUp = std::move(cleanUp);
    qInstallMessageHandler(logQtMessage);
}
