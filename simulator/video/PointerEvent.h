#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>

#include <optional>

namespace simulator
{

/// What the program tells of the pointer on the mirrored screen.
struct PointerEvent {
    enum class Type { Press, Release, Move };

    Type type = Type::Press;
    QPointF position; ///< fractions 0 to 1 of the picture's width and height

    QString typeName() const;
};

/// Nothing when the bytes are not those of a pointer event with one point.
std::optional<PointerEvent> parsePointerEvent(const QByteArray& datagram);

} // namespace simulator
