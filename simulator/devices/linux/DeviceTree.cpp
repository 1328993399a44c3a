#include "simulator/devices/DeviceTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

using Device = DeviceTree::Device;

constexpr auto Hub = "devices/pci0000:00/0000:00:14.0/usb1/1-4"_L1;
constexpr auto Sound = "class/sound"_L1;
constexpr auto Video = "class/video4linux"_L1;
constexpr auto StagingFolder = ".plugging"_L1;
constexpr auto RemovalFolder = ".unplugging"_L1;

// Folder names and attributes of one device.
struct Model {
    Device device;
    QLatin1StringView port; // on the USB bus
    QLatin1StringView productId;
    QLatin1StringView name;
    QLatin1StringView classFolder;
    QLatin1StringView node;
    QLatin1StringView stream; // of a sound card

    [[nodiscard]] QString usbFolder() const { return u"%1/%2"_s.arg(Hub, port); }
    [[nodiscard]] QString nodeFolder() const // below the USB device
    {
        const auto subsystem = classFolder.sliced("class/"_L1.size());
        return u"%1:1.0/%2/%3"_s.arg(port, subsystem, node);
    }

    struct ClassEntry {
        QString link;
        QString target; // below the root
    };
    [[nodiscard]] QList<ClassEntry> classEntries() const
    {
        const QString target = usbFolder() + u'/' + nodeFolder();
        QList<ClassEntry> entries{{u"%1/%2"_s.arg(classFolder, node), target}};
        if (!stream.isEmpty())
            entries.append({u"%1/%2"_s.arg(classFolder, stream), target + u'/' + stream});
        return entries;
    }
};

constexpr Model Models[] = {
    {Device::Microphone, "1-4.1"_L1, "4b41"_L1, "VORN K4V Microphone"_L1, Sound, "card1"_L1,
     "pcmC1D0c"_L1},
    {Device::Camera, "1-4.2"_L1, "4b42"_L1, "VORN K4V Camera"_L1, Video, "video0"_L1, {}},
    {Device::Speaker, "1-4.3"_L1, "4b43"_L1, "VORN K4V Speaker"_L1, Sound, "card2"_L1,
     "pcmC2D0p"_L1},
};

const Model& modelOf(Device device)
{
    return Models[static_cast<int>(device)];
}

bool writeAttribute(const QString& folder, QLatin1StringView name, QLatin1StringView value)
{
    QFile file(folder + u'/' + name);
    const QByteArray line = QByteArray(value.data(), value.size()) + '\n';
    return file.open(QIODevice::WriteOnly) && file.write(line) == line.size() && file.flush();
}

// The links named "device" are relative, like those of the kernel.
bool buildNode(const Model& model, const QString& usbFolder)
{
    const QString node = usbFolder + u'/' + model.nodeFolder();
    if (!QDir().mkpath(node) ||
        !QFile::link(u"../../../"_s + model.port + ":1.0"_L1, node + "/device"_L1))
        return false;
    if (model.stream.isEmpty())
        return writeAttribute(node, "name"_L1, model.name);
    // The kernel shortens the id to one word. The full name lets a rule match by name too.
    const QString stream = node + u'/' + model.stream;
    return writeAttribute(node, "id"_L1, model.name) && QDir().mkpath(stream) &&
           QFile::link(u"../../"_s + model.node, stream + "/device"_L1) &&
           writeAttribute(stream, "pcm_class"_L1, "generic"_L1);
}

bool buildDevice(const Model& model, const QString& usbFolder)
{
    return QDir().mkpath(usbFolder) && writeAttribute(usbFolder, "idVendor"_L1, "fff0"_L1) &&
           writeAttribute(usbFolder, "idProduct"_L1, model.productId) &&
           writeAttribute(usbFolder, "manufacturer"_L1, "VORN"_L1) &&
           writeAttribute(usbFolder, "product"_L1, model.name) &&
           writeAttribute(usbFolder, "serial"_L1, "K4V0001"_L1) && buildNode(model, usbFolder);
}

// Removes the folder and its parents below the root, up to the first that is not empty.
void removeEmptyFolders(const QString& root, QString folder)
{
    while (!folder.isEmpty() && QDir(root).rmdir(folder))
        folder = folder.left(qMax<qsizetype>(folder.lastIndexOf(u'/'), 0));
}

} // namespace

QString DeviceTree::open(const QString& root)
{
    close();
    m_madeRoot = !QFileInfo::exists(root);
    if (!QDir().mkpath(root) || !QFileInfo(root).isWritable())
        return u"cannot write in the folder \"%1\""_s.arg(root);
    m_root = QFileInfo(root).canonicalFilePath();
    for (const Model& model : Models)
        unplug(model.device);
    QDir(path(StagingFolder)).removeRecursively();
    return {};
}

void DeviceTree::close()
{
    if (!isOpen())
        return;
    for (const Model& model : Models)
        unplug(model.device);
    for (const auto folder : {Hub, Sound, Video})
        removeEmptyFolders(m_root, folder);
    if (m_madeRoot)
        QDir().rmdir(m_root);
    m_root.clear();
}

bool DeviceTree::isPlugged(Device device) const
{
    return isOpen() && QFileInfo::exists(path(modelOf(device).usbFolder()));
}

QString DeviceTree::plug(Device device)
{
    if (!isOpen())
        return u"there is no device tree; name its folder with \"devices root\""_s;
    if (isPlugged(device))
        return {};
    const Model& model = modelOf(device);
    const QString aside = path(StagingFolder);
    bool done = buildDevice(model, aside) && QDir().mkpath(path(Hub)) &&
                QDir().mkpath(path(model.classFolder)) &&
                QDir().rename(aside, path(model.usbFolder()));
    const auto entries = model.classEntries();
    for (const auto& entry : entries)
        done = done && QFile::link(u"../../"_s + entry.target, path(entry.link));
    if (done)
        return {};
    unplug(device);
    QDir(aside).removeRecursively();
    return u"cannot make \"%1\" in %2"_s.arg(model.name, m_root);
}

void DeviceTree::unplug(Device device)
{
    if (!isOpen())
        return;
    const Model& model = modelOf(device);
    const auto entries = model.classEntries();
    for (auto entry = entries.crbegin(); entry != entries.crend(); ++entry) {
        const QString link = path(entry->link);
        if (QFileInfo(link).symLinkTarget() == path(entry->target)) // leaves foreign links alone
            QFile::remove(link);
    }
    // A rename removes the whole device at once; removing its files takes longer.
    QDir away(path(RemovalFolder));
    away.removeRecursively();
    QDir().rename(path(model.usbFolder()), away.path());
    away.removeRecursively();
}
