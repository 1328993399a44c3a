#include "qml/Announcer.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QGuiApplication>
#include <QRect>
#include <QWindow>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace
{

// A screen reader asks for the text after the event, when a later message would have replaced it.
constexpr auto SameTime = std::chrono::milliseconds(50);

/// The window of the program that is used, or else one that is visible; null when there is none.
QWindow* shownWindow()
{
    if (QWindow* const focused = QGuiApplication::focusWindow())
        return focused;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto isShown = [](const QWindow* window) {
        return window->isVisible() && window->visibility() != QWindow::Minimized;
    };
    const auto found = std::ranges::find_if(windows, isShown);
    return found == windows.end() ? nullptr : *found;
}

/// The message as an object that belongs to the window without being one of its children, so that
/// a screen reader does not find it among the controls.
class AccessibleAnnouncement : public QAccessibleObject
{
public:
    explicit AccessibleAnnouncement(Announcer* announcer)
        : QAccessibleObject(announcer)
    {
    }

    QAccessible::Role role() const override { return QAccessible::AlertMessage; }
    QAccessible::State state() const override { return {}; }
    QRect rect() const override { return {}; }
    QWindow* window() const override { return shownWindow(); }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(shownWindow());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        const auto* const announcer = static_cast<const Announcer*>(object());
        return kind == QAccessible::Name ? announcer->message() : QString();
    }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    return className == "Announcer"_L1 ? new AccessibleAnnouncement(static_cast<Announcer*>(object))
                                       : nullptr;
}

} // namespace

Announcer::Announcer()
{
    QAccessible::installFactory(makeInterface);
    m_timer.setSingleShot(true);
    m_timer.setInterval(SameTime);
    connect(&m_timer, &QTimer::timeout, this, &Announcer::speak);
}

void Announcer::announce(const QString& message)
{
    if (!QAccessible::isActive() || !shownWindow())
        return;
    m_waiting += message;
    if (!m_timer.isActive())
        m_timer.start();
}

void Announcer::speak()
{
    if (!shownWindow()) {
        m_waiting.clear();
        return;
    }
    m_message = m_waiting.join(u'\n');
    m_waiting.clear();
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(this, m_message);
    QAccessible::updateAccessibility(&event);
#else
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    // AT-SPI knows no alert event. There a screen reader speaks an alert that comes into sight.
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
#endif
}
