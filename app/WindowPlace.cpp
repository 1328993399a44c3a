#include "app/WindowPlace.h"

#include "platform/WindowMoves.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace
{

int areaOf(const QRect& rectangle)
{
    return rectangle.isValid() ? rectangle.width() * rectangle.height() : 0;
}

/// The place nearest to the wanted one that lies inside the area. A window that is larger than the
/// area shows its upper edge, and the side on which it has its title buttons.
QRect moveInto(const QRect& area, QRect wanted)
{
    const int lastLeft = area.x() + area.width() - wanted.width();
    const int lastTop = area.y() + area.height() - wanted.height();
    const int left = QGuiApplication::isRightToLeft()
                         ? std::max(std::min(wanted.x(), lastLeft), area.x())
                         : std::min(std::max(wanted.x(), area.x()), lastLeft);
    wanted.moveTo(left, std::max(std::min(wanted.y(), lastTop), area.y()));
    return wanted;
}

} // namespace

WindowPlace::WindowPlace()
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(0);
    connect(&m_settling, &QTimer::timeout, this, &WindowPlace::settle);
}

void WindowPlace::manage(QWindow* window, QSize size)
{
    m_window = window;
    m_size = size;
    connect(window, &QWindow::screenChanged, this, [this] {
        watchScreen();
        settleLater();
    });
    watchScreen();
    settle();
    m_isPlaced = true;
}

void WindowPlace::watchScreen()
{
    disconnect(m_screenSize);
    if (const QScreen* const screen = m_window->screen())
        m_screenSize =
            connect(screen, &QScreen::availableGeometryChanged, this, &WindowPlace::settleLater);
}

/// The window keeps its size while the pointer moves it from one screen to another: resized, it
/// could fall back onto the first.
void WindowPlace::settleLater()
{
    m_hasNewScreen = true;
    if (!m_isGrabbed)
        m_settling.start();
}

const QScreen* WindowPlace::nearestScreen() const
{
    if (platform::systemMovesWindows()) // the position of the window is not known
        return m_window->screen();
    const QRect place = m_window->geometry();
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto nearest = std::max_element(
        screens.begin(), screens.end(), [&place](const QScreen* one, const QScreen* other) {
            return areaOf(one->geometry() & place) < areaOf(other->geometry() & place);
        });
    return nearest == screens.end() ? nullptr : *nearest;
}

qreal WindowPlace::fitOf(QSize size) const
{
    const QScreen* const screen = m_window ? nearestScreen() : QGuiApplication::primaryScreen();
    if (!screen)
        return 1;
    const QSizeF room = screen->availableSize();
    const qreal fit = std::min(room.width() / size.width(), room.height() / size.height());
    return std::min(1.0, std::max(fit, 1 / screen->devicePixelRatio()));
}

void WindowPlace::settle()
{
    const QScreen* const screen = m_window ? nearestScreen() : nullptr;
    if (!screen)
        return;
    const QSize size = chooseSize();
    const QRect area = screen->availableGeometry();
    const QRect now = m_window->geometry();
    QRect place(QPoint(), size);
    place.moveCenter(now.center());
    const bool isReachable = size.width() <= area.width() && size.height() <= area.height() &&
                             areaOf(area & place) >= areaOf(place) / 2;
    if (!isReachable || (m_isPlaced && size != now.size()))
        place = moveInto(area, place);
    // The window system reports a new screen before it reports the size that the window has there.
    if (!std::exchange(m_hasNewScreen, false) && place == now)
        return;
    if (platform::systemMovesWindows() || (isReachable && !m_isPlaced))
        m_window->resize(size);
    else
        m_window->setGeometry(place);
}

/// The size of the window on its screen, in whole pixels, which the content fills.
QSize WindowPlace::chooseSize()
{
    const int width = int(m_size.width() * fitOf(m_size));
    const qreal fit = qreal(width) / m_size.width();
    const QSize size(width, qRound(m_size.height() * fit));
    if (m_fit != fit) {
        m_fit = fit;
        emit fitChanged();
    }
    m_window->setMinimumSize(size);
    m_window->setMaximumSize(size);
    return size;
}

void WindowPlace::grab(QPointF at)
{
    m_isGrabbed = true;
    m_grabbedAt = at.toPoint();
}

/// One request, and from the position of the pointer alone: the window's own position lags behind
/// while the window moves.
void WindowPlace::drag()
{
    if (!m_window || !m_isGrabbed)
        return;
    if (platform::systemMovesWindows()) {
        m_isGrabbed = false; // the system takes the pointer, and no release arrives
        m_window->startSystemMove();
        return;
    }
    m_window->setPosition(QCursor::pos() - m_grabbedAt);
}

void WindowPlace::drop()
{
    m_isGrabbed = false;
    if (m_hasNewScreen)
        m_settling.start();
}
