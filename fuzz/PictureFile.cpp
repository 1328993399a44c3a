// The input is a picture file. It is encoded for the upload unless it is large.
#include "account/ImageFile.h"
#include "fuzz/FuzzSupport.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace
{

/// Whether the picture has so many points that decoding it takes longer than a fuzzer may wait.
bool isLarge(QByteArray bytes)
{
    constexpr qint64 ManyPixels = 500'000;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    const QSize size = QImageReader(&buffer).size();
    return qint64{size.width()} * size.height() > ManyPixels;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int s_argc = 1;
    static char s_name[] = "fuzz";
    static char* s_argv[] = {s_name, nullptr};
    static const QCoreApplication s_app(s_argc, s_argv); // the decoders are plugins
    static const QString s_path = fuzz::temporaryFile(u"picture.png"_s);
    const QByteArray bytes = fuzz::bytes(data, size);
    const bool isAffordable = ImageFile::isAffordable(bytes);
    if (isLarge(bytes))
        return 0;
    fuzz::write(s_path, bytes);
    const bool isPicture = ImageFile::isPicture(s_path);
    const ImageFile::Encoded encoded = ImageFile::encode(s_path);
    if (encoded.status != ImageFile::Encoded::Status::Ok)
        return 0;
    fuzz::require(isAffordable && isPicture, "what is uploaded can be shown");
    fuzz::require(QImage::fromData(encoded.bytes).isNull() == encoded.bytes.isEmpty(),
                  "what is uploaded is a picture");
    return 0;
}
