#pragma once

#include "simulator/video/PointerEvent.h"

#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <optional>

namespace simulator
{

/// The display's first-run set-up: steps, buttons and choices. Positions and areas are fractions of
/// the screen's width and height.
class SetupFlow
{
public:
    enum class Step { Welcome, Language, Network, RoomName, Finish, Done };

    struct Button {
        enum class Kind { Next, Back, Option };

        QString name; ///< next, back, option1, option2, ...
        QString text;
        QRectF area;
        Kind kind = Kind::Next;
        bool isChosen = false; ///< of an option
        bool isPressed = false;
    };

    /// The last position of the pointer.
    struct Mark {
        QPointF position;
        bool isDown = false;
    };

    static QStringList stepNames();

    Step step() const { return m_step; }
    QString stepName() const { return stepNames().at(int(m_step)); }
    QString title() const;
    QString text() const;
    QList<Button> buttons() const;
    const std::optional<Mark>& mark() const { return m_mark; }

    /// Increases with each change of the screen.
    int revision() const { return m_revision; }

    /// Handles a pointer event. A button is activated when the pointer is pressed and released on
    /// it. Returns the name of the activated button, otherwise an empty text.
    QString take(const PointerEvent& event);
    /// Returns to the first step and the default choices.
    void restart();

private:
    QString buttonAt(const QPointF& position) const;
    void activate(const QString& button);
    int& choice() { return m_choices[int(m_step)]; }
    QString chosen(Step step) const;

    Step m_step = Step::Welcome;
    QList<int> m_choices = QList<int>(6, 0); // by step
    std::optional<Mark> m_mark;
    QString m_armed; // name of the button on which the pointer was pressed
    int m_revision = 0;
};

} // namespace simulator
