// Cost of one device-check round beyond the enumeration itself.
#include "bench/Measure.h"
#include "peripherals/DeviceCheck.h"
#include "platform/DeviceEnumeration.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

struct NoStatus : LocalDeviceStatus {
    void setVornMicStatus(int) override {}
    void setVornCamStatus(int) override {}
    void setVornSpkStatus(int) override {}
};

void write(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// Twelve devices, as on a PC with a dock and a display.
void plugDevices(const QString& root)
{
    for (int i = 0; i < 4; ++i) {
        const QString card = root + u"/class/sound/card%1"_s.arg(i);
        write(card + u"/id"_s, "Card" + QByteArray::number(i) + '\n');
        write(card + u"/device/idVendor"_s, "1234\n");
        write(card + u"/device/idProduct"_s, "00c" + QByteArray::number(i) + '\n');
        write(card + u"/device/serial"_s, "A" + QByteArray::number(i) + '\n');
        QDir().mkpath(root + u"/class/sound/pcmC%1D0p"_s.arg(i));
        const QString camera = root + u"/class/video4linux/video%1"_s.arg(i);
        write(camera + u"/name"_s, "Integrated Camera " + QByteArray::number(i) + '\n');
    }
}

int listDevices()
{
    using platform::DeviceClass;
    QList<platform::DeviceRecord> devices;
    quint32 errorCode = 0;
    for (const auto deviceClass :
         {DeviceClass::Media, DeviceClass::Camera, DeviceClass::AudioEndpoint})
        platform::scanDevices(deviceClass, devices, errorCode);
    return static_cast<int>(devices.size());
}

} // namespace

int main()
{
    QTemporaryDir root;
    plugDevices(root.path());
    qputenv("VORN_SYSFS_ROOT", QFile::encodeName(root.path())); // without effect on Windows

    DeviceCheck check;
    if (!check.ReadJsonConfig(QStringLiteral(VORN_SAMPLE_CONFIG)))
        return 1;
    NoStatus status;
    const int devices = listDevices();
    check.checkDevices(status);

    // Both run alternately, so that they meet the same disturbances. The mean is compared because
    // one round in twenty lists the devices even if nothing changed, which a median would leave
    // out.
    bench::Values bare;
    bench::Values round;
    for (int i = 0; i < 2000; ++i) {
        bare.push_back(bench::microsecondsOf(listDevices));
        round.push_back(bench::microsecondsOf([&] { check.checkDevices(status); }));
    }
    std::printf("device check round: ratio %.2f against a bare enumeration (%d devices, %.0f us)\n",
                bench::mean(round) / bench::mean(bare), devices, bench::mean(bare));
    return 0;
}
