#pragma once

#include <functional>

class QObject;
class QString;

namespace platform
{

/// Shows a message on a desktop that has no tray to show it. Has no effect on Windows, which always
/// has a tray. Main thread.
/// @param shown  called when the desktop has taken the message, while `context` exists
void notifyDesktop(const QString& title, const QString& text, const QObject* context,
                   std::function<void()> shown);

} // namespace platform
