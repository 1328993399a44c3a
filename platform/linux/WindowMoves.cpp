#include "platform/WindowMoves.h"

#include <QGuiApplication>

namespace platform
{

bool systemMovesWindows()
{
    return QGuiApplication::platformName().startsWith(QLatin1StringView("wayland"));
}

} // namespace platform
