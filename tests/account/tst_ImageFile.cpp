#include "account/ImageFile.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QtEndian>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;
using Status = ImageFile::Encoded::Status;

namespace
{

QByteArray pictureBytes(const char* format)
{
    QImage picture(64, 48, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 4, y * 5, x * y));
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, format);
    return bytes;
}

// A bitmap header that announces 50,000 x 50,000 pixels, without the pixels.
QByteArray bitmapBomb()
{
    QByteArray bytes = pictureBytes("BMP");
    qToLittleEndian<qint32>(50'000, bytes.data() + 18);
    qToLittleEndian<qint32>(50'000, bytes.data() + 22);
    return bytes;
}

// The same as a PNG, with the checksum of the header.
QByteArray pngBomb()
{
    QByteArray bytes = pictureBytes("PNG");
    qToBigEndian<quint32>(50'000, bytes.data() + 16);
    qToBigEndian<quint32>(50'000, bytes.data() + 20);
    quint32 crc = ~0U;
    for (int i = 12; i < 29; ++i) {
        crc ^= static_cast<quint8>(bytes[i]);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xedb88320U : 0U);
    }
    qToBigEndian<quint32>(~crc, bytes.data() + 29);
    return bytes;
}

QByteArray formatOf(const QByteArray& bytes)
{
    if (bytes.startsWith("\x89PNG"))
        return "PNG"_ba;
    return bytes.startsWith("\xff\xd8") ? "JPG"_ba : QByteArray();
}

} // namespace

class tst_ImageFile : public QObject
{
    Q_OBJECT

private slots:
    void encodes_data();
    void encodes();
    void refusesWhatIsNoPictureFile();
    void appliesTheOrientation();
    void limitsTheMemoryOfLargePictures_data();
    void limitsTheMemoryOfLargePictures();
    void knowsWhatIsDecodedWhole();

private:
    QTemporaryDir m_folder;
};

void tst_ImageFile::encodes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("format"); // empty: refused
    const QByteArray png = pictureBytes("PNG");
    const QByteArray jpeg = pictureBytes("JPG");
    QTest::newRow("upper-case jpeg") << u"a.JPEG"_s << jpeg << "JPG"_ba;
    QTest::newRow("jpg") << u"a.jpg"_s << jpeg << "JPG"_ba;
    QTest::newRow("bmp") << u"a.bmp"_s << pictureBytes("BMP") << "PNG"_ba;
    QTest::newRow("icon") << u"a.ico"_s << pictureBytes("ICO") << "PNG"_ba;
    QTest::newRow("png named jpg") << u"lie.jpg"_s << png << "JPG"_ba;
    QTest::newRow("jpeg named png") << u"lie.png"_s << jpeg << "PNG"_ba;
    QTest::newRow("text named png") << u"text.png"_s << "not a picture"_ba << QByteArray();
    QTest::newRow("truncated png") << u"cut.png"_s << png.first(png.size() / 2) << QByteArray();
    QTest::newRow("png bomb") << u"bomb.png"_s << pngBomb() << QByteArray();
    QTest::newRow("bitmap bomb") << u"bomb.bmp"_s << bitmapBomb() << QByteArray();
    QTest::newRow("truncated jpeg body")
        << u"half.jpg"_s << jpeg.first(jpeg.size() / 2) << "JPG"_ba;
    QTest::newRow("drawing")
        << u"drawing.png"_s
        << R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"/>)"_ba << QByteArray();
}

void tst_ImageFile::encodes()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, content);
    QFETCH(const QByteArray, format);
    QFile file(m_folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();

    const ImageFile::Encoded encoded = ImageFile::encode(file.fileName());
    QCOMPARE(encoded.status, format.isEmpty() ? Status::NotLoaded : Status::Ok);
    // A truncated file has a good head.
    QCOMPARE(ImageFile::isPicture(file.fileName()), !format.isEmpty() || name == "cut.png"_L1);
    QCOMPARE(formatOf(encoded.bytes), format);
    if (!format.isEmpty())
        QCOMPARE(QImage::fromData(encoded.bytes).size(), QSize(64, 48));
}

void tst_ImageFile::refusesWhatIsNoPictureFile()
{
    QCOMPARE(ImageFile::encode(m_folder.filePath(u"gone.png"_s)).status, Status::NotLoaded);
    QCOMPARE(ImageFile::encode(m_folder.path()).status, Status::NotLoaded);
    QCOMPARE(ImageFile::encode({}).status, Status::NotLoaded);
    // A good picture followed by a hole of 5 GB, which takes no room on the disk.
    QFile file(m_folder.filePath(u"endless.png"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(pictureBytes("PNG"));
    QVERIFY(file.resize(5LL * 1024 * 1024 * 1024));
    QCOMPARE(ImageFile::encode(file.fileName()).status, Status::NotLoaded);
#ifdef Q_OS_UNIX
    const QString pipe = m_folder.filePath(u"pipe.png"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(ImageFile::encode(pipe).status, Status::NotLoaded);
#endif
}

void tst_ImageFile::appliesTheOrientation()
{
    const QString path = m_folder.filePath(u"turned.jpg"_s);
    QImageWriter writer(path);
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    QVERIFY(writer.write(QImage(64, 48, QImage::Format_RGB32)));
    QCOMPARE(QImage::fromData(ImageFile::encode(path).bytes).size(), QSize(48, 64));
}

void tst_ImageFile::limitsTheMemoryOfLargePictures_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("jpg") << QSize(4000, 3500) << QImage::Format_RGB32 << u"a.jpg"_s << true;
    QTest::newRow("progressive jpg")
        << QSize(4000, 3500) << QImage::Format_RGB32 << u"progressive.jpg"_s << false;
    QByteArray png = pictureBytes("PNG");
    QBuffer buffer(&png);
    const bool isScaled = QImageReader(&buffer).supportsOption(QImageIOHandler::ScaledSize);
    QTest::newRow("png") << QSize(4000, 3500) << QImage::Format_RGB32 << u"a.png"_s << isScaled;
    QTest::newRow("grey png") << QSize(8000, 7000) << QImage::Format_Grayscale8 << u"b.png"_s
                              << false;
}

void tst_ImageFile::limitsTheMemoryOfLargePictures()
{
    QFETCH(const QSize, size);
    QFETCH(const QImage::Format, format);
    QFETCH(const QString, name);
    QFETCH(const bool, accepted);
    const QString path = m_folder.filePath(name);
    QImageWriter writer(path);
    writer.setProgressiveScanWrite(name.startsWith("progressive"_L1));
    {
        QImage picture(size, format);
        picture.fill(Qt::gray);
        QVERIFY(writer.write(picture));
    }
    const int before = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(int(ImageFile::MaxPixels * 4 / 1'000'000) + 1);
    const ImageFile::Encoded encoded = ImageFile::encode(path);
    QImageReader::setAllocationLimit(before);
    QCOMPARE(encoded.status, accepted ? Status::Ok : Status::NotLoaded);
    QCOMPARE(ImageFile::isPicture(path), accepted);
    if (accepted) {
        const QSize written = QImage::fromData(encoded.bytes).size();
        QCOMPARE_LE(qint64{written.width()} * written.height(), ImageFile::MaxPixels);
        QCOMPARE(written.width(), size.width() / 2);
    }
}

void tst_ImageFile::knowsWhatIsDecodedWhole()
{
    // An animation of 3500 x 3500 and 500 x 500 points, with a frame of one.
    const auto gif = [](const char* side) {
        return QByteArray::fromHex("474946383961"_ba + side + side +
                                   "800000000000ffffff2c00000000010001000002024401003b");
    };
    QVERIFY(!ImageFile::isAffordable(gif("ac0d")));
    QVERIFY(ImageFile::isAffordable(gif("f401")));

    // A sequential JPEG file of 12,000 x 12,000 points, with all components in one pass or not.
    const QByteArray frame = "ffd8ffc0001108 2ee02ee0 03 012200 021100 031100 "_ba;
    QVERIFY(
        ImageFile::isAffordable(QByteArray::fromHex(frame + "ffda000c 03 0100 0200 0300 003f00")));
    QVERIFY(!ImageFile::isAffordable(QByteArray::fromHex(frame + "ffda0008 01 0100 003f00")));
    QVERIFY(ImageFile::isAffordable("no picture"_ba));
}

QTEST_GUILESS_MAIN(tst_ImageFile)
#include "tst_ImageFile.moc"
