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

/// Whether a JPEG file has its data in one pass. A file with several passes is decoded whole.
bool isBaselineJpeg(const QByteArray& head)
{
    qsizetype at = 2;
    while (at + 4 <= head.size() && quint8(head[at]) == 0xff) {
        const quint8 marker = head[at + 1];
        if (marker == 0xc0 || marker == 0xc1)
            return true;
        if (marker == 0xc2 || marker == 0xda)
            return false;
        at += 2 + qFromBigEndian<quint16>(head.constData() + at + 2);
    }
    return false;
}

/// Whether a PNG file has 8 bits a colour, no palette and no interlacing.
bool isPlainPng(const QByteArray& head)
{
    return head.size() > 28 && head[24] == 8 && (head[25] == 2 || head[25] == 6) && head[28] == 0;
}

/// Whether the reader can scale the picture down without decoding it whole.
bool scalesWhileReading(QImageReader& reader)
{
    constexpr qint64 HeadSize = 262'144; // embedded thumbnails come first
    if (reader.format() == "jpeg")
        return isBaselineJpeg(reader.device()->peek(HeadSize));
    return reader.format() == "png" && isPlainPng(reader.device()->peek(32));
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
    const bool scales = scalesWhileReading(reader);
    if (!isRaster(reader.format()))
        return false;

    const QSize size = reader.size();
    const qint64 pixels = qint64{size.width()} * size.height();
    // JPEG can be scaled by powers of two without a larger picture in between.
    int divisor = 1;
    while (pixels / (qint64{divisor} * divisor) > ImageFile::MaxPixels)
        divisor *= 2;
    const QImage::Format format = reader.imageFormat();
    const int bits =
        format == QImage::Format_Invalid ? 32 : QImage::toPixelFormat(format).bitsPerPixel();
    const bool isReadWhole = divisor == 1 || !scales;
    if (pixels > ImageFile::MaxSourcePixels ||
        (isReadWhole && pixels * bits / 8 > ImageFile::MaxDecodedSize))
        return false;
    if (divisor > 1)
        reader.setScaledSize(
            QSize(size.width() / divisor, size.height() / divisor).expandedTo({1, 1}));
    return true;
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
    return prepare(reader, file) && reader.canRead();
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
