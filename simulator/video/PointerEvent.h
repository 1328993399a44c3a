#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>

#include <optional>

namespace simulator
{

/// A pointer event of the program on the mirrored screen.
struct PointerEvent {
    enum class Type { Press, Release, Move };

    Type type = Type::Press;
    QPointF position; ///< fractions, 0 to 1, of the picture's width and height

    QString typeName() const;
};

/// Nothing if the datagram is not a pointer event with one point.
std::optional<PointerEvent> parsePointerEvent(const QByteArray& datagram);

} // namespace simulator
