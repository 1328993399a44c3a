#pragma once

#include <functional>

/// Writes Qt's own messages (TLS, tray, multimedia, QML) to the log from now on, under the name of
/// their category. Call it on the main thread after InitLog().
///
/// Qt ends a program that has no display with a fatal message while the application object is
/// constructed. That is no crash: the reason goes to standard error, and the process exits with 1.
/// When the compositor goes, Qt's message is followed by _exit(); ExitGuard does its work before.
/// @param cleanUp  called before that exit, on the main thread
void logQtMessages(std::function<void()> cleanUp);
