#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>

namespace simulator
{

/// Converts a part of @p image (Format_RGB32, even width and height) into the NV12 picture @p nv12
/// of the same size, in BT.601 limited range. The part is widened to whole pairs of pixels. If @p
/// nv12 has another length it is resized, and then @p part must be the whole image.
void convertToNv12(const QImage& image, const QRect& part, QByteArray& nv12);

} // namespace simulator
