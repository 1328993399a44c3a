#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>

namespace simulator
{

/// Puts a part of @p image, which is of Format_RGB32 and of even width and height, into the NV12
/// picture @p nv12 of the same size, in BT.601 of limited range. The part is widened to whole pairs
/// of pixels. A picture of another length is made anew, and then the part must be everything.
void convertToNv12(const QImage& image, const QRect& part, QByteArray& nv12);

} // namespace simulator
