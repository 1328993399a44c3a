#include "simulator/devices/DeviceTree.h"

#include <QByteArrayList>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QThread>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

using Device = DeviceTree::Device;

constexpr auto ListName = "devices.txt"_L1;
constexpr int WriteAttempts = 20;
constexpr int WritePauseMs = 5;

/// A device is listed in one or more setup classes. In the order of DeviceTree::Device.
QByteArrayList linesOf(Device device)
{
    static const QByteArrayList s_lines[] = {
        {"Media\tUSB\\VID_FFF0&PID_4B41\\K4V0001\tVORN K4V Microphone\n",
         "AudioEndpoint\tSWD\\MMDEVAPI\\{0.0.1.00000000}.VORN1\tVORN K4V Microphone\n"},
        {"Camera\tUSB\\VID_FFF0&PID_4B42\\K4V0001\tVORN K4V Camera\n"},
        {"Media\tUSB\\VID_FFF0&PID_4B43\\K4V0001\tVORN K4V Speaker\n",
         "AudioEndpoint\tSWD\\MMDEVAPI\\{0.0.0.00000000}.VORN2\tVORN K4V Speaker\n"},
    };
    return s_lines[static_cast<int>(device)];
}

QByteArray readList(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The file cannot be replaced while the program reads it.
bool writeList(const QString& path, const QByteArray& text)
{
    for (int attempt = 0; attempt < WriteAttempts; ++attempt) {
        QSaveFile file(path);
        if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
            return true;
        QThread::msleep(WritePauseMs);
    }
    return false;
}

QByteArray withoutDevice(QByteArray list, Device device)
{
    for (const QByteArray& line : linesOf(device))
        list.replace(line, QByteArray());
    return list;
}

} // namespace

QString DeviceTree::open(const QString& root)
{
    close();
    m_madeRoot = !QFileInfo::exists(root);
    if (!QDir().mkpath(root) || !writeList(root + u'/' + ListName, {}))
        return u"cannot write in the folder \"%1\""_s.arg(root);
    m_root = QFileInfo(root).absoluteFilePath();
    return {};
}

void DeviceTree::close()
{
    if (!isOpen())
        return;
    QFile::remove(path(ListName));
    if (m_madeRoot)
        QDir().rmdir(m_root);
    m_root.clear();
}

bool DeviceTree::isPlugged(Device device) const
{
    return isOpen() && readList(path(ListName)).contains(linesOf(device).constFirst());
}

QString DeviceTree::plug(Device device)
{
    if (!isOpen())
        return u"there is no device tree; name its folder with \"devices root\""_s;
    const QByteArray others = withoutDevice(readList(path(ListName)), device);
    if (!writeList(path(ListName), others + linesOf(device).join()))
        return u"cannot write \"%1\" in %2"_s.arg(ListName, m_root);
    return {};
}

void DeviceTree::unplug(Device device)
{
    if (isOpen())
        writeList(path(ListName), withoutDevice(readList(path(ListName)), device));
}
