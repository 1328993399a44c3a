#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSize>
#include <QTimer>

class QScreen;
class QWindow;

/// Keeps the frameless main window whole and within reach: moves it with the pointer, and fits it
/// to the screen that it is on, also when that screen changes or vanishes. Main thread.
class WindowPlace : public QObject
{
    Q_OBJECT
    /// Scale at which the window draws its content: 1, or less on a screen that is too small for
    /// the window. See fitOf().
    Q_PROPERTY(qreal fit READ fit NOTIFY fitChanged)

public:
    WindowPlace();

    /// Takes charge of a window, whose size at the scale 1 is `size` device-independent pixels.
    Q_INVOKABLE void manage(QWindow* window, QSize size);
    /// Gives the window its size. Moves it onto a screen when less than half of it can be seen; of
    /// a window that is larger than the screen the title buttons stay visible. The system chooses
    /// the first place of a window that fits.
    Q_INVOKABLE void settle();
    /// The scale at which a window of this size fits the managed window's screen. It undoes the
    /// scale of the system as far as needed and no further: no pixel of the design becomes smaller
    /// than a pixel of the screen.
    Q_INVOKABLE qreal fitOf(QSize size) const;
    qreal fit() const { return m_fit; }

    /// The pointer grabs the window at a position in the window and moves it until drop().
    Q_INVOKABLE void grab(QPointF at);
    Q_INVOKABLE void drag();
    Q_INVOKABLE void drop();

signals:
    void fitChanged();

private:
    void watchScreen();
    void settleLater();
    const QScreen* nearestScreen() const;
    QSize chooseSize();

    QPointer<QWindow> m_window;
    QSize m_size;
    qreal m_fit = 1;
    QTimer m_settling; // one turn of the event loop after a change of the screens
    QMetaObject::Connection m_screenSize;
    QPoint m_grabbedAt;
    bool m_isGrabbed = false;
    bool m_isPlaced = false; // the system has chosen the first place
    bool m_hasNewScreen = false;
};
