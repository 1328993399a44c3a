#include "account/ImageFile.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QUrl>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace
{

bool startsWithDrive(QStringView path)
{
    return path.size() >= 3 && path[1] == u':' && path[2] == u'/' && path[0].unicode() < 128 &&
           path[0].isLetter();
}

// Builds the URL from its parts, because "?" and "#" are ordinary characters of a file name.
QString localFile(const QString& host, const QString& path)
{
    QUrl url;
    url.setScheme(u"file"_s);
    url.setHost(host);
    url.setPath(path, QUrl::TolerantMode);
    return url.toLocalFile();
}

// A vector picture has no decoded size to check, and drawing one can take unlimited time.
bool isRaster(const QByteArray& format)
{
    return !format.isEmpty() && !format.startsWith("svg");
}

/// Bytes a pixel that the decoder keeps of a JPEG file until its last pass: none if there is only
/// one, otherwise all coefficients of all components.
int bytesUntilLastPass(const QByteArray& head)
{
    constexpr int Unknown = 8; // four components at full resolution
    const auto byte = [&head](qsizetype at) { return at < head.size() ? quint8(head[at]) : 0; };
    int components = 0;
    int coefficients = Unknown;
    bool isSequential = false;
    for (qsizetype at = 2; at + 4 <= head.size() && byte(at) == 0xff;) {
        const int marker = byte(at + 1);
        if (marker == 0xda)
            return isSequential && byte(at + 4) == components ? 0 : coefficients;
        if (marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 &&
            marker != 0xcc) {
            isSequential = marker == 0xc0 || marker == 0xc1;
            components = byte(at + 9);
            int samples = 0;
            int most = 1;
            for (qsizetype i = 0; i < components; ++i) {
                const int factors = byte(at + 11 + 3 * i);
                samples += (factors >> 4) * (factors & 15);
                most = qMax(most, (factors >> 4) * (factors & 15));
            }
            coefficients = 2 * samples / most + 1;
        }
        at += 2 + qFromBigEndian<quint16>(head.constData() + at + 2);
    }
    return Unknown;
}

/// Whether a PNG file has 8 bits a colour, no palette and no interlacing.
bool isPlainPng(const QByteArray& head)
{
    return head.size() > 28 && head[24] == 8 && (head[25] == 2 || head[25] == 6) && head[28] == 0;
}

/// Bytes a pixel that decoding takes at most beside a result of reduced size.
int bytesPerPixel(QImageReader& reader)
{
    constexpr qint64 HeadSize = 1 << 20; // embedded thumbnails and colour profiles come first
    if (reader.format() == "jpeg")
        return bytesUntilLastPass(reader.device()->peek(HeadSize));
    // Qt 6.8 scales PNG files only after it has read them.
    if (reader.format() == "png" && reader.supportsOption(QImageIOHandler::ScaledSize) &&
        isPlainPng(reader.device()->peek(32)))
        return 0;
    const QImage::Format format = reader.imageFormat();
    const int bytes = format == QImage::Format_Invalid
                          ? 4
                          : (QImage::toPixelFormat(format).bitsPerPixel() + 7) / 8;
    // Scaling works on 4 bytes a pixel, and an animation keeps the frame before.
    return reader.supportsAnimation() ? 2 * bytes : bytes + (bytes < 4 ? 4 : 0);
}

/// Size of the picture to be read. The first frame of an animation may be smaller than the canvas.
QSize sizeOf(QImageReader& reader)
{
    QSize canvas;
    if (reader.format() == "gif") {
        const QByteArray head = reader.device()->peek(10);
        if (head.size() == 10)
            canvas = QSize(qFromLittleEndian<quint16>(head.constData() + 6),
                           qFromLittleEndian<quint16>(head.constData() + 8));
    }
    return reader.size().expandedTo(canvas);
}

/// Sets the size at which the picture on the device is read. False if it takes too much memory.
bool limitSize(QImageReader& reader)
{
    // First, as reading the size moves the device.
    if (!isRaster(reader.format()) || !reader.canRead())
        return false;
    const int bytes = bytesPerPixel(reader);
    const QSize size = sizeOf(reader);
    const qint64 pixels = qint64{size.width()} * size.height();
    if (!size.isValid() || pixels > ImageFile::MaxSourcePixels ||
        pixels * bytes > ImageFile::MaxDecodedSize)
        return false;
    // JPEG can be scaled by powers of two without a larger picture in between.
    int divisor = 1;
    while (pixels / (qint64{divisor} * divisor) > ImageFile::MaxPixels)
        divisor *= 2;
    if (divisor > 1)
        reader.setScaledSize(
            QSize(size.width() / divisor, size.height() / divisor).expandedTo({1, 1}));
    return true;
}

/// Opens a picture of acceptable size and sets the size at which it is read. False if there is
/// none.
bool prepare(QImageReader& reader, QFile& file)
{
    // Opening a pipe blocks until another process writes to it; devices never end.
    if (!QFileInfo(file).isFile())
        return false;
    // Some decoders read the whole file into memory first.
    if (!file.open(QIODevice::ReadOnly) || file.size() > ImageFile::MaxFileSize)
        return false;
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    reader.setDevice(&file);
    return limitSize(reader);
}

bool isNamedJpeg(const QString& path)
{
    return path.endsWith(".jpg"_L1, Qt::CaseInsensitive) ||
           path.endsWith(".jpeg"_L1, Qt::CaseInsensitive);
}

} // namespace

namespace ImageFile
{

QString normaliseImagePath(const QString& imagePath)
{
    constexpr auto FilePrefix = "file:///"_L1;
    constexpr auto SharePrefix = "file://"_L1;
    constexpr auto ResourcePrefix = "qrc:/"_L1;

    if (imagePath.startsWith(FilePrefix)) {
        const QString path = localFile({}, imagePath.sliced(FilePrefix.size() - 1));
        const QString withoutSlash = path.sliced(path.startsWith(u'/') ? 1 : 0);
        return startsWithDrive(withoutSlash) ? withoutSlash : path;
    }
    if (imagePath.startsWith(SharePrefix)) {
        const QString hostAndPath = imagePath.sliced(SharePrefix.size());
        const auto slash = hostAndPath.indexOf(u'/');
        return slash < 0 ? imagePath
                         : localFile(hostAndPath.first(slash), hostAndPath.sliced(slash));
    }
    if (imagePath.startsWith(ResourcePrefix))
        return u':' + imagePath.sliced(ResourcePrefix.size() - 1);
    return imagePath;
}

qint64 size(const QString& path)
{
    return QFileInfo(path).size();
}

bool isPicture(const QString& path)
{
    QFile file(path);
    QImageReader reader;
    return prepare(reader, file);
}

bool isAffordable(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return reader.format().isEmpty() || limitSize(reader);
}

Encoded encode(const QString& path)
{
    QFile file(path);
    QImageReader reader;
    const QImage image = prepare(reader, file) ? reader.read() : QImage();
    if (image.isNull())
        return {Encoded::Status::NotLoaded, {}};

    Encoded encoded;
    QBuffer buffer(&encoded.bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, isNamedJpeg(path) ? "JPG" : "PNG"))
        return {Encoded::Status::NotEncoded, {}};
    encoded.status = Encoded::Status::Ok;
    return encoded;
}

} // namespace ImageFile
