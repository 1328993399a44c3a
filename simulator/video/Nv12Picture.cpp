#include "simulator/video/Nv12Picture.h"

#include <array>

namespace
{

struct Rgb {
    int r = 0;
    int g = 0;
    int b = 0;

    static Rgb of(QRgb colour) { return {qRed(colour), qGreen(colour), qBlue(colour)}; }
};

// BT.601 limited range: 219 steps of luma and 224 of chroma. Factors are in units of 1/65536.
constexpr int Half = 1 << 15;

uchar luma(const Rgb& c)
{
    return uchar(16 + ((16829 * c.r + 33039 * c.g + 6416 * c.b + Half) >> 16));
}

uchar blueness(const Rgb& c)
{
    return uchar(128 + ((-9714 * c.r - 19070 * c.g + 28784 * c.b + Half) >> 16));
}

uchar redness(const Rgb& c)
{
    return uchar(128 + ((28784 * c.r - 24103 * c.g - 4681 * c.b + Half) >> 16));
}

Rgb mean(const std::array<Rgb, 4>& pixels)
{
    Rgb sum{2, 2, 2};
    for (const Rgb& pixel : pixels)
        sum = {sum.r + pixel.r, sum.g + pixel.g, sum.b + pixel.b};
    return {sum.r / 4, sum.g / 4, sum.b / 4};
}

} // namespace

void simulator::convertToNv12(const QImage& image, const QRect& part, QByteArray& nv12)
{
    const int width = image.width();
    const int height = image.height();
    nv12.resize(qsizetype(width) * height * 3 / 2);
    const QRect wanted = part & image.rect();
    if (wanted.isEmpty())
        return;
    const int right = (wanted.right() / 2 + 1) * 2;
    auto* const lumas = reinterpret_cast<uchar*>(nv12.data());
    uchar* const chromas = lumas + qsizetype(width) * height;
    for (int y = wanted.top() / 2 * 2; y <= wanted.bottom(); y += 2) {
        const auto* const upper = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        const auto* const lower = reinterpret_cast<const QRgb*>(image.constScanLine(y + 1));
        uchar* const lumaRow = lumas + qsizetype(y) * width;
        uchar* const chromaRow = chromas + qsizetype(y / 2) * width;
        for (int x = wanted.left() / 2 * 2; x < right; x += 2) {
            const std::array<Rgb, 4> pixels{Rgb::of(upper[x]), Rgb::of(upper[x + 1]),
                                            Rgb::of(lower[x]), Rgb::of(lower[x + 1])};
            lumaRow[x] = luma(pixels[0]);
            lumaRow[x + 1] = luma(pixels[1]);
            lumaRow[width + x] = luma(pixels[2]);
            lumaRow[width + x + 1] = luma(pixels[3]);
            const Rgb colour = mean(pixels);
            chromaRow[x] = blueness(colour);
            chromaRow[x + 1] = redness(colour);
        }
    }
}
