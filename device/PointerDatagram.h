#pragma once

#include <QByteArray>

/// The datagram that reports a pointer event on the mirrored screen to the companion program.
/// @param type  0 press, 1 release, 2 move
/// @param x     fraction 0 to 1 of the picture's width, y likewise of its height
QByteArray pointerDatagram(quint8 type, float x, float y);
