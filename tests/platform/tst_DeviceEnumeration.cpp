#include "platform/DeviceEnumeration.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <memory>

using namespace Qt::StringLiterals;
using platform::DeviceClass;
using platform::DeviceRecord;

/// Scans of a made-up device tree.
class tst_DeviceEnumeration : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void followsLinksToTheUsbDevice();
    void readsDevicesWithoutSerialNumber();
    void appendsInNumericalOrder();
    void reportsUnreadableFolders();
    void stampChangesWithTheDevices();

private:
    void write(const QString& path, const QByteArray& text) const;
    void link(const QString& path, const QString& target) const;
    void makeUsbDevice(const QString& folder, const QByteArray& serial) const;
    static QList<DeviceRecord> scan(DeviceClass deviceClass);

    std::unique_ptr<QTemporaryDir> m_root;
};

void tst_DeviceEnumeration::write(const QString& path, const QByteArray& text) const
{
    const QString full = m_root->filePath(path);
    QVERIFY(QDir().mkpath(QFileInfo(full).path()));
    QFile file(full);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

void tst_DeviceEnumeration::link(const QString& path, const QString& target) const
{
    const QString full = m_root->filePath(path);
    QVERIFY(QDir().mkpath(QFileInfo(full).path()));
    QVERIFY(QFile::link(target, full));
}

void tst_DeviceEnumeration::makeUsbDevice(const QString& folder, const QByteArray& serial) const
{
    write(folder + "/idVendor"_L1, "1d6b\n");
    write(folder + "/idProduct"_L1, "0a1b\n");
    write(folder + "/product"_L1, "K4V Speakerphone\n");
    if (!serial.isEmpty())
        write(folder + "/serial"_L1, serial + '\n');
}

QList<DeviceRecord> tst_DeviceEnumeration::scan(DeviceClass deviceClass)
{
    QList<DeviceRecord> records;
    quint32 error = 1;
    if (!platform::scanDevices(deviceClass, records, error) || error != 0)
        qFatal("scan failed");
    return records;
}

void tst_DeviceEnumeration::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    qputenv("VORN_SYSFS_ROOT", m_root->path().toUtf8());
}

void tst_DeviceEnumeration::followsLinksToTheUsbDevice()
{
    const QString usb = u"devices/pci0000:00/usb1/1-2.4"_s;
    makeUsbDevice(usb, "a1b2c3");
    const QString card = usb + "/1-2.4:1.0/sound/card1"_L1;
    write(card + "/id"_L1, "K4V\n");
    link(card + "/device"_L1, u"../../../1-2.4:1.0"_s);
    link(u"class/sound/card1"_s, u"../../"_s + card);
    for (const QString& stream : {u"pcmC1D0p"_s, u"pcmC1D0c"_s}) {
        write(card + u'/' + stream + "/pcm_class"_L1, "generic\n");
        link(card + u'/' + stream + "/device"_L1, u"../../card1"_s);
        link(u"class/sound/"_s + stream, u"../../"_s + card + u'/' + stream);
    }
    write(u"class/sound/controlC1/dev"_s, "116:1\n");
    write(u"class/sound/timer/dev"_s, "116:2\n");
    const QString video = usb + "/1-2.4:1.2/video4linux/video0"_L1;
    write(video + "/name"_L1, "K4V Camera: K4V Camera\n");
    link(u"class/video4linux/video0"_s, u"../../"_s + video);
    write(u"class/video4linux/v4l-subdev0/name"_s, "sensor\n");

    const QString id = u"USB\\VID_1D6B&PID_0A1B\\A1B2C3"_s;
    QCOMPARE(scan(DeviceClass::Media), (QList<DeviceRecord>{{id, u"K4V"_s}}));
    QCOMPARE(scan(DeviceClass::AudioEndpoint),
             (QList<DeviceRecord>{{id, u"K4V"_s}, {id, u"K4V"_s}}));
    QCOMPARE(scan(DeviceClass::Camera), (QList<DeviceRecord>{{id, u"K4V Camera: K4V Camera"_s}}));
}

void tst_DeviceEnumeration::readsDevicesWithoutSerialNumber()
{
    // A tree made by hand, where `device` holds the USB attributes itself.
    makeUsbDevice(u"class/sound/card0/device"_s, {});
    write(u"class/sound/pcmC0D0c/pcm_class"_s, "generic\n");
    const DeviceRecord byHand{u"USB\\VID_1D6B&PID_0A1B\\DEVICE"_s, u"K4V Speakerphone"_s};
    QCOMPARE(scan(DeviceClass::AudioEndpoint), QList<DeviceRecord>{byHand});

    makeUsbDevice(u"devices/usb1/1-7"_s, {});
    for (const QString& device : {u"usb1/1-7/1-7:1.0"_s, u"platform/hda"_s}) {
        const QString name = device.startsWith(u'u') ? u"card1"_s : u"card2"_s;
        write(u"devices/%1/sound/%2/id"_s.arg(device, name), "PCH\n");
        link(u"class/sound/"_s + name, u"../../devices/%1/sound/%2"_s.arg(device, name));
    }
    const QString root = QDir(m_root->path()).canonicalPath();
    QCOMPARE(scan(DeviceClass::Media),
             (QList<DeviceRecord>{byHand,
                                  {u"USB\\VID_1D6B&PID_0A1B\\1-7"_s, u"PCH"_s},
                                  {root + "/devices/platform/hda/sound/card2"_L1, u"PCH"_s}}));
}

void tst_DeviceEnumeration::appendsInNumericalOrder()
{
    for (const int number : {10, 2, 0})
        write(u"class/sound/card%1/id"_s.arg(number), "card" + QByteArray::number(number));
    write(u"class/video4linux/video0/name"_s, "video0");
    QList<DeviceRecord> records;
    quint32 error = 0;
    for (const auto deviceClass :
         {DeviceClass::Media, DeviceClass::Camera, DeviceClass::AudioEndpoint})
        QVERIFY(platform::scanDevices(deviceClass, records, error));
    QStringList names;
    for (const DeviceRecord& record : records)
        names << record.friendlyName;
    QCOMPARE(names, (QStringList{u"card0"_s, u"card2"_s, u"card10"_s, u"video0"_s}));
}

void tst_DeviceEnumeration::reportsUnreadableFolders()
{
    QVERIFY(scan(DeviceClass::Media).isEmpty()); // without devices the class has no folder
    const auto fails = [](DeviceClass deviceClass, quint32 wanted) {
        QList<DeviceRecord> records;
        quint32 error = 0;
        return !platform::scanDevices(deviceClass, records, error) && error == wanted &&
               records.isEmpty();
    };
    write(u"class/sound"_s, "not a folder");
    QVERIFY(fails(DeviceClass::Media, ENOTDIR));
    qputenv("VORN_SYSFS_ROOT", m_root->filePath(u"missing"_s).toUtf8());
    QVERIFY(fails(DeviceClass::Camera, ENOENT));
}

void tst_DeviceEnumeration::stampChangesWithTheDevices()
{
    QList<std::size_t> stamps;
    const auto hasChanged = [&] {
        const std::size_t stamp = platform::deviceStamp().value_or(0);
        const bool isNew = !stamps.contains(stamp);
        stamps << stamp;
        return isNew;
    };
    QVERIFY(hasChanged());
    link(u"class/sound/card1"_s, u"../../devices/first"_s);
    QVERIFY(hasChanged());
    QVERIFY(!hasChanged());

    // A different device under the same name.
    QVERIFY(QFile::remove(m_root->filePath(u"class/sound/card1"_s)));
    link(u"class/sound/card1"_s, u"../../devices/second"_s);
    QVERIFY(hasChanged());
    write(u"class/video4linux/video0/name"_s, "Camera\n");
    QVERIFY(hasChanged());
    QVERIFY(!hasChanged());
}

QTEST_GUILESS_MAIN(tst_DeviceEnumeration)
#include "tst_DeviceEnumeration.moc"
