#include "platform/SystemTray.h"

#include <QObject>
#include <QTimer>

#include <utility>

namespace platform
{

class SystemTray::Private : public QObject
{
};

/// The taskbar is always there, and Qt adds the icon again when Explorer restarts.
SystemTray::SystemTray(std::function<void(Opening opening)> found)
    : m_private(std::make_unique<Private>())
{
    QTimer::singleShot(0, m_private.get(),
                       [found = std::move(found)] { found(Opening::DoubleClick); });
}

SystemTray::~SystemTray() = default;

} // namespace platform
