#include "platform/DeviceEnumeration.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHashFunctions>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::size_t AttributeLimit = 4096;
constexpr int MaximumPlaces = 4; // entry, card, interface, device; more means a circle of links

struct ClassFolder {
    QLatin1StringView path;
    QLatin1StringView prefix;
    QLatin1StringView suffixes; // allowed last characters; empty: any digit
};

ClassFolder classFolder(platform::DeviceClass deviceClass)
{
    switch (deviceClass) {
    case platform::DeviceClass::Camera:
        return {"class/video4linux"_L1, "video"_L1, {}};
    case platform::DeviceClass::AudioEndpoint:
        return {"class/sound"_L1, "pcmC"_L1, "cp"_L1};
    case platform::DeviceClass::Media:
        break;
    }
    return {"class/sound"_L1, "card"_L1, {}};
}

bool belongsTo(const ClassFolder& folder, const QString& name)
{
    if (!name.startsWith(folder.prefix) || name.size() == folder.prefix.size())
        return false;
    const QChar last = name.back();
    return folder.suffixes.isEmpty() ? last.isDigit() : folder.suffixes.contains(last);
}

/// The path with its links resolved; empty when it leads nowhere. Takes one look-up in the kernel,
/// where realpath() takes one for each part of the path.
QString placeOf(const QString& path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC);
    if (fd < 0)
        return {};
    std::array<char, PATH_MAX> place;
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(fd);
    const auto length = ::readlink(link.constData(), place.data(), place.size());
    ::close(fd);
    return length > 0 ? QFile::decodeName(QByteArray(place.data(), length)) : QString();
}

/// One tree of device attributes.
class DeviceTree
{
public:
    explicit DeviceTree(const QString& root)
        : m_root(placeOf(root))
    {
    }

    [[nodiscard]] const QString& root() const { return m_root; }

    [[nodiscard]] platform::DeviceRecord describe(const QString& entry) const
    {
        // From the entry towards the hardware, along the `device` links.
        QStringList places{placeOf(entry)};
        if (const QString card = cardOf(entry); !card.isEmpty())
            places << card;
        for (int i = 0; i < places.size() && places.size() < MaximumPlaces; ++i) {
            const QString next = placeOf(places[i] + "/device"_L1);
            if (!next.isEmpty() && !places.contains(next))
                places << next;
        }
        const QString usbDevice = findUsbDevice(places);
        return {instanceId(places.first(), usbDevice), friendlyName(places, usbDevice)};
    }

private:
    // The sound card (card1) that a stream (pcmC1D0c) belongs to.
    [[nodiscard]] static QString cardOf(const QString& entry)
    {
        const QFileInfo info(entry);
        const QString name = info.fileName();
        if (!name.startsWith("pcmC"_L1))
            return {};
        const QString number = name.sliced(4, qMax<qsizetype>(name.indexOf(u'D') - 4, 0));
        return placeOf(info.path() + "/card"_L1 + number);
    }

    [[nodiscard]] QString findUsbDevice(const QStringList& places) const
    {
        for (QString folder : places) {
            while (folder.size() > m_root.size() && folder.startsWith(m_root)) {
                if (QFileInfo::exists(folder + "/idVendor"_L1) &&
                    QFileInfo::exists(folder + "/idProduct"_L1))
                    return folder;
                folder = QFileInfo(folder).path();
            }
        }
        return {};
    }

    [[nodiscard]] static QString instanceId(const QString& place, const QString& usbDevice)
    {
        if (usbDevice.isEmpty())
            return place;
        QString serial = attribute(usbDevice, "serial"_L1);
        if (serial.isEmpty())
            serial = QFileInfo(usbDevice).fileName();
        return (u"USB\\VID_"_s + attribute(usbDevice, "idVendor"_L1) + u"&PID_"_s +
                attribute(usbDevice, "idProduct"_L1) + u'\\' + serial)
            .toUpper();
    }

    [[nodiscard]] static QString friendlyName(const QStringList& places, const QString& usbDevice)
    {
        for (const auto name : {"id"_L1, "name"_L1}) {
            for (const QString& place : places) {
                if (QString value = attribute(place, name); !value.isEmpty())
                    return value;
            }
        }
        return usbDevice.isEmpty() ? QString() : attribute(usbDevice, "product"_L1);
    }

    // Empty when the attribute does not exist, since devices can vanish during the scan, or is a
    // folder, as the `id` of a bus is.
    [[nodiscard]] static QString attribute(const QString& folder, QLatin1StringView name)
    {
        const QByteArray path = QFile::encodeName(folder + u'/' + name);
        const int fd = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        if (fd < 0)
            return {};
        std::array<char, AttributeLimit> text;
        const auto length = ::read(fd, text.data(), text.size());
        ::close(fd);
        return length > 0 ? QString::fromUtf8(text.data(), length).trimmed() : QString();
    }

    QString m_root;
};

QString rootOfTree()
{
    const QString configured = qEnvironmentVariable("VORN_SYSFS_ROOT");
    return configured.isEmpty() ? u"/sys"_s : configured;
}

// Returns errno or 0. QDir does not distinguish an empty folder from an unreadable one.
int listFolder(const QString& path, QStringList& names)
{
    DIR* const folder = ::opendir(QFile::encodeName(path).constData());
    if (!folder)
        return errno;
    // Only this thread reads the stream, which is what readdir() requires.
    while (const dirent* entry = ::readdir(folder)) // NOLINT(concurrency-mt-unsafe)
        names << QFile::decodeName(entry->d_name);
    ::closedir(folder);
    return 0;
}

/// Hash of the folder's modification time and its entries, independent of order. Links are not
/// followed: that would dominate a check made once a second.
std::size_t stampOfFolder(const QByteArray& path)
{
    DIR* const folder = ::opendir(path.constData());
    if (!folder)
        return 0;
    std::size_t stamp = 0;
    struct stat status = {};
    if (::fstat(::dirfd(folder), &status) == 0)
        stamp = qHashMulti(0, status.st_dev, status.st_ino, status.st_mtim.tv_sec,
                           status.st_mtim.tv_nsec);
    while (const dirent* entry = ::readdir(folder)) // NOLINT(concurrency-mt-unsafe)
        stamp += qHashMulti(0, QByteArrayView(entry->d_name), entry->d_ino);
    ::closedir(folder);
    return stamp;
}

// Shorter names first, so that card2 comes before card10.
void sortByNumber(QStringList& names)
{
    std::sort(names.begin(), names.end(), [](const QString& left, const QString& right) {
        return left.size() != right.size() ? left.size() < right.size() : left < right;
    });
}

} // namespace

namespace platform
{

bool scanDevices(DeviceClass deviceClass, QList<DeviceRecord>& records, quint32& errorCode)
{
    const DeviceTree tree(rootOfTree());
    errorCode = ENOENT;
    if (tree.root().isEmpty())
        return false;

    const ClassFolder folder = classFolder(deviceClass);
    const QString path = tree.root() + u'/' + folder.path;
    QStringList names;
    // The folder of a class appears with its first device.
    const int error = listFolder(path, names);
    if (error != 0 && error != ENOENT) {
        errorCode = static_cast<quint32>(error);
        return false;
    }
    names.removeIf([&](const QString& name) { return !belongsTo(folder, name); });
    sortByNumber(names);
    for (const QString& name : names)
        records << tree.describe(path + u'/' + name);
    errorCode = 0;
    return true;
}

std::optional<std::size_t> deviceStamp()
{
    const QByteArray root = QFile::encodeName(rootOfTree());
    return qHashMulti(0, stampOfFolder(root + "/class/sound"),
                      stampOfFolder(root + "/class/video4linux"));
}

} // namespace platform
