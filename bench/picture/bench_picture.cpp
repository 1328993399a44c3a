// bench_picture   prints the memory that a picture of 12,000 x 12,000 points takes when it is
// encoded for the upload and when it is shown, as a ratio to the most that any picture may take.

#include "account/ImageFile.h"
#include "bench/Measure.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QTemporaryDir>

#include <fstream>
#include <string>

using namespace Qt::StringLiterals;

namespace
{

constexpr double MostKilobytes = 64 * 1024;

/// A figure of /proc/self/status in kilobytes.
double kilobytes(const std::string& name)
{
    std::ifstream file("/proc/self/status");
    std::string word;
    while (file >> word) {
        double value = 0;
        if (word == name && file >> value)
            return value;
    }
    return 0;
}

/// Largest amount of memory in use during a call of @p work, beyond that before it.
template <typename Work>
double peakOf(Work work)
{
    std::ofstream("/proc/self/clear_refs") << "5"; // starts the peak anew
    const double before = kilobytes("VmRSS:");
    work();
    return kilobytes("VmHWM:") - before;
}

/// Decodes a picture as the pages do, which show only what is affordable.
void show(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !ImageFile::isAffordable(file.readAll()))
        return;
    QImageReader reader(path);
    reader.setScaledSize({84, 84});
    (void)reader.read();
}

void measure(const QString& path, const char* what)
{
    // Buffers of the decoder that stay are not counted.
    const QString small = path + "-small.png"_L1;
    QImage(64, 64, QImage::Format_RGB32).save(small);
    (void)ImageFile::encode(small);
    bench::printRatio(qPrintable(QString::fromLatin1(what) + ", upload"_L1),
                      peakOf([&] { (void)ImageFile::encode(path); }) / 1024, MostKilobytes / 1024,
                      "MB", 1.0);
    bench::printRatio(qPrintable(QString::fromLatin1(what) + ", shown"_L1),
                      peakOf([&] { show(path); }) / 1024, MostKilobytes / 1024, "MB", 1.0);
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    const auto write = [&](const char* name, QImage::Format format, bool isProgressive = false) {
        QImageWriter writer(folder.filePath(QString::fromLatin1(name)));
        writer.setProgressiveScanWrite(isProgressive);
        QImage picture(12'000, 12'000, format);
        picture.fill(Qt::gray);
        if (!writer.write(picture))
            qFatal("the picture cannot be written");
    };
    QImageReader::setAllocationLimit(0); // the measured limits are those of ImageFile
    write("a.png", QImage::Format_RGB32);
    measure(folder.filePath(u"a.png"_s), "PNG");
    write("grey.png", QImage::Format_Grayscale8);
    measure(folder.filePath(u"grey.png"_s), "PNG in grey");
    write("a.jpg", QImage::Format_RGB32);
    measure(folder.filePath(u"a.jpg"_s), "JPEG");
    write("progressive.jpg", QImage::Format_RGB32, true);
    measure(folder.filePath(u"progressive.jpg"_s), "JPEG in passes");
}
