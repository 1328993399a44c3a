#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace simulator
{

/// Lines that no well-behaved display sends, to see that a program survives them.
QStringList malformedLineKinds();
/// One line of kind number @p kind of that list; its newline is part of it where it has one.
QByteArray malformedLine(int kind);

} // namespace simulator
