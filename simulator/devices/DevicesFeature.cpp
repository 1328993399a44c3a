#include "simulator/devices/DevicesFeature.h"

#include "simulator/script/CommandInterpreter.h"
#include "simulator/script/EventLog.h"

#include <QJsonArray>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

using Device = DeviceTree::Device;

// The words of the commands. Those before "all" are in the order of DeviceTree::Device.
const QStringList& deviceWords()
{
    static const QStringList s_words{u"mic"_s, u"camera"_s, u"speaker"_s, u"all"_s};
    return s_words;
}

QList<Device> devicesOf(int choice)
{
    if (choice == deviceWords().size() - 1)
        return {Device::Microphone, Device::Camera, Device::Speaker};
    return {Device(choice)};
}

} // namespace

DevicesFeature::DevicesFeature(EventLog& log, QObject* parent)
    : Feature(parent)
    , m_log(log)
{
}

QString DevicesFeature::name() const
{
    return u"devices"_s;
}

void DevicesFeature::addCommands(CommandInterpreter& interpreter)
{
    interpreter.add(
        {u"devices root"_s, u"<folder>"_s,
         u"Keeps a device tree, laid out as /sys, in the folder for a program started with\n"
         "VORN_SYSFS_ROOT set to it. On Windows keeps the file devices.txt there, which the\n"
         "variable VORN_DEVICE_LIST has to name. Removed when the simulator ends."_s,
         [this](CommandArguments& arguments) {
             const QString folder = arguments.rest(u"the folder"_s);
             return simpleAction([this, folder] { return setRoot(folder); });
         }});
    interpreter.add({u"plug"_s, deviceWords().join(u'|'),
                     u"Plugs in devices of the display, as its cable does (none)."_s,
                     [this](CommandArguments& arguments) {
                         const int choice = arguments.choice(deviceWords());
                         return simpleAction([this, choice] { return plug(choice); });
                     }});
    interpreter.add({u"unplug"_s, deviceWords().join(u'|'), u"Unplugs them."_s,
                     [this](CommandArguments& arguments) {
                         const int choice = arguments.choice(deviceWords());
                         return simpleAction([this, choice] { return unplug(choice); });
                     }});
}

QJsonObject DevicesFeature::status() const
{
    if (!m_tree.isOpen())
        return {};
    QJsonArray plugged;
    for (const Device device : devicesOf(int(deviceWords().size()) - 1)) {
        if (m_tree.isPlugged(device))
            plugged.append(deviceWords().at(int(device)));
    }
    return {{u"root"_s, m_tree.root()}, {u"plugged"_s, plugged}};
}

QString DevicesFeature::setRoot(const QString& folder)
{
    QString error = m_tree.open(folder);
    if (error.isEmpty())
        reportState();
    return error;
}

QString DevicesFeature::plug(int choice)
{
    for (const Device device : devicesOf(choice)) {
        if (QString error = m_tree.plug(device); !error.isEmpty())
            return error;
    }
    reportState();
    return {};
}

QString DevicesFeature::unplug(int choice)
{
    if (!m_tree.isOpen())
        return u"there is no device tree; name its folder with \"devices root\""_s;
    for (const Device device : devicesOf(choice))
        m_tree.unplug(device);
    reportState();
    return {};
}

void DevicesFeature::reportState()
{
    m_log.write(u"devices"_s, status());
    emit changed();
}
