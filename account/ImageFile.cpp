#include "account/ImageFile.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace
{

constexpr int BytesPerPixel = 4;

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

QImage load(const QString& path)
{
    // Opening a pipe blocks until another process writes to it; devices never end.
    if (!QFileInfo(path).isFile())
        return {};
    QFile file(path);
    // Some decoders read the whole file into memory first.
    if (!file.open(QIODevice::ReadOnly) || file.size() > ImageFile::MaxFileSize)
        return {};

    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    if (!isRaster(reader.format()))
        return {};
    const QSize size = reader.size();
    if (qint64{size.width()} * size.height() > ImageFile::MaxDecodedSize / BytesPerPixel)
        return {};
    return reader.read();
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

Encoded encode(const QString& path)
{
    const QImage image = load(path);
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
