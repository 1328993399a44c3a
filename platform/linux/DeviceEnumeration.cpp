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

constexpr std::size_t kAttributeLimit = 4096;
constexpr int kMaxLinks = 4; // card, interface, device; more is a tree that leads in circles

struct ClassFolder {
    QLatin1StringView path;
    QLatin1StringView prefix;
    QLatin1StringView suffixes; // one of these characters has to be the last one; empty: a digit
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

/// Where a path leads to, free of links; empty when there is nothing. The kernel is asked once,
/// while realpath() asks it for each part of the path.
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
        // From the entry towards the hardware: its own place, then where `device` leads.
        QStringList places{placeOf(entry)};
        if (const QString card = cardOf(entry); !card.isEmpty())
            places << card;
        for (int i = 0; i < places.size() && places.size() < kMaxLinks; ++i) {
            const QString next = placeOf(places[i] + "/device"_L1);
            if (!next.isEmpty() && !places.contains(next))
                places << next;
        }
        const QString usbDevice = findUsbDevice(places);
        return {instanceId(places.first(), usbDevice), friendlyName(places, usbDevice)};
    }

private:
    // A stream of a sound card (pcmC1D0c) is named after the card (card1).
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

    // Empty when there is none, as devices vanish while they are listed, and when it is a folder,
    // as the `id` of a bus is. An attribute is read in one piece.
    [[nodiscard]] static QString attribute(const QString& folder, QLatin1StringView name)
    {
        const QByteArray path = QFile::encodeName(folder + u'/' + name);
        const int fd = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        if (fd < 0)
            return {};
        std::array<char, kAttributeLimit> text;
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

// QDir cannot tell an empty folder from one that may not be read.
int listFolder(const QString& path, QStringList& names)
{
    DIR* const folder = ::opendir(QFile::encodeName(path).constData());
    if (!folder)
        return errno;
    // One thread reads this stream, which is all that readdir() asks for.
    while (const dirent* entry = ::readdir(folder)) // NOLINT(concurrency-mt-unsafe)
        names << QFile::decodeName(entry->d_name);
    ::closedir(folder);
    return 0;
}

/// Of the folder's own change and of its entries, in whatever order they are listed. A device that
/// comes back is a new entry; where the entries are links they are not followed, which is what
/// would cost most of a look that is taken every second.
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
