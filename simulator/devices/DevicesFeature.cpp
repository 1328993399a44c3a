#include "simulator/devices/DevicesFeature.h"

#include "simulator/script/CommandInterpreter.h"
#include "simulator/script/EventLog.h"

#include <QJsonArray>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

using Device = DeviceTree::Device;

struct Choice {
    QString word;
    QList<Device> devices;
};

const QList<Choice>& choices()
{
    static const QList<Choice> list{
        {u"mic"_s, {Device::Microphone}},
        {u"camera"_s, {Device::Camera}},
        {u"speaker"_s, {Device::Speaker}},
        {u"all"_s, {Device::Microphone, Device::Camera, Device::Speaker}}};
    return list;
}

int takeChoice(CommandArguments& arguments)
{
    QStringList words;
    for (const Choice& choice : choices())
        words.append(choice.word);
    return arguments.choice(words);
}

CommandOutcome outcomeOf(const QString& error)
{
    return error.isEmpty() ? CommandOutcome::done() : CommandOutcome::failed(error);
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
         u"Keeps a tree of devices in that folder, laid out as /sys, for a program started with\n"
         "VORN_SYSFS_ROOT set to it. The tree goes when the simulator ends. Linux only."_s,
         [this](CommandArguments& arguments) -> CommandAction {
             const QString folder = arguments.rest(u"the folder"_s);
             return [this, folder] { return outcomeOf(setRoot(folder)); };
         }});
    interpreter.add({u"plug"_s, u"mic|camera|speaker|all"_s,
                     u"Plugs in devices of the display, as its cable does (none)."_s,
                     [this](CommandArguments& arguments) -> CommandAction {
                         const int choice = takeChoice(arguments);
                         return [this, choice] { return outcomeOf(plug(choice)); };
                     }});
    interpreter.add({u"unplug"_s, u"mic|camera|speaker|all"_s, u"Takes them away again."_s,
                     [this](CommandArguments& arguments) -> CommandAction {
                         const int choice = takeChoice(arguments);
                         return [this, choice] { return outcomeOf(unplug(choice)); };
                     }});
}

QJsonObject DevicesFeature::status() const
{
    if (!m_tree.isOpen())
        return {};
    QJsonArray plugged;
    for (const Choice& choice : choices()) {
        if (choice.devices.size() == 1 && m_tree.isPlugged(choice.devices.first()))
            plugged.append(choice.word);
    }
    return {{u"root"_s, m_tree.root()}, {u"plugged"_s, plugged}};
}

QString DevicesFeature::setRoot(const QString& folder)
{
    QString error = m_tree.open(folder);
    if (error.isEmpty())
        tellState();
    return error;
}

QString DevicesFeature::plug(int choice)
{
    for (const Device device : choices().at(choice).devices) {
        if (QString error = m_tree.plug(device); !error.isEmpty())
            return error;
    }
    tellState();
    return {};
}

QString DevicesFeature::unplug(int choice)
{
    if (!m_tree.isOpen())
        return u"there is no device tree; name its folder with \"devices root\""_s;
    for (const Device device : choices().at(choice).devices)
        m_tree.unplug(device);
    tellState();
    return {};
}

void DevicesFeature::tellState()
{
    m_log.write(u"devices"_s, status());
    emit changed();
}
