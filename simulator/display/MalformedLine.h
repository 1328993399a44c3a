#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace simulator
{

/// Kinds of lines that no well-behaved display sends. A program has to survive them.
QStringList malformedLineKinds();
/// A line of the kind with index @p kind in that list, including its newline if it has one.
QByteArray malformedLine(int kind);

} // namespace simulator
