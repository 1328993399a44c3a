#pragma once

#include "simulator/video/PointerEvent.h"

#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <optional>

namespace simulator
{

/// The display's first-run set-up as a person walks through it: steps, buttons, choices. Places are
/// fractions of the screen's width and height.
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

    /// Where the pointer was pressed last, or has been moved to since.
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

    /// Changes whenever the screen does.
    int revision() const { return m_revision; }

    /// A button works when it is released where it was pressed. Returns the name of the one that
    /// did, if any.
    QString take(const PointerEvent& event);
    /// Begins again, with nothing chosen.
    void restart();

private:
    QString buttonAt(const QPointF& position) const;
    void activate(const QString& button);
    int& choice() { return m_choices[int(m_step)]; }
    QString chosen(Step step) const;

    Step m_step = Step::Welcome;
    QList<int> m_choices = QList<int>(6, 0); // by step
    std::optional<Mark> m_mark;
    QString m_armed; // button on which the pointer was pressed
    int m_revision = 0;
};

} // namespace simulator
