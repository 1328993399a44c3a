// The commands of DisplayModel.

#include "simulator/display/DisplayModel.h"
#include "simulator/script/CommandInterpreter.h"

using namespace simulator;
using namespace Qt::StringLiterals;

QString DisplayModel::name() const
{
    return u"display"_s;
}

void DisplayModel::addCommands(CommandInterpreter& interpreter)
{
    addConnectionCommands(interpreter);
    addStateCommands(interpreter);
}

void DisplayModel::addConnectionCommands(CommandInterpreter& interpreter)
{
    interpreter.add({u"connect"_s, u"[<mode>|first-run]"_s,
                     u"Connects the display: 1 (default) for normal use, 2 or first-run when it\n"
                     "waits for its first set-up, 3 to 9 for modes a program does not know."_s,
                     [this](CommandArguments& arguments) {
                         int mode = NormalUse;
                         if (arguments.peek() == "first-run"_L1) {
                             arguments.word({});
                             mode = FirstRun;
                         } else if (!arguments.atEnd()) {
                             mode = arguments.integer(u"the mode"_s, 1, 9);
                         }
                         return simpleAction([this, mode] { connectDisplay(mode); });
                     }});
    interpreter.add(u"disconnect"_s, u"Disconnects the display (message 0 with isReady 0)."_s,
                    [this] { disconnectDisplay(); });
    interpreter.addSwitch(
        u"ack"_s, u"Whether the display acknowledges messages of type 2 with type 3 (on)."_s,
        [this](bool on) { setAcknowledging(on); });
}

void DisplayModel::addStateCommands(CommandInterpreter& interpreter)
{
    interpreter.add({u"volume"_s, u"<0..100>"_s, u"Sets the display's volume (40)."_s,
                     [this](CommandArguments& arguments) {
                         const int volume = arguments.integer(u"the volume"_s, 0, 100);
                         return simpleAction([this, volume] { setVolume(volume); });
                     }});
    interpreter.add(
        {u"source"_s, u"none|available|byod|zoom"_s,
         u"Sets the display's source: none available, both available, BYOD selected, or the\n"
         "room meeting selected (available)."_s,
         [this](CommandArguments& arguments) {
             const int choice = arguments.choice({u"none"_s, u"available"_s, u"byod"_s, u"zoom"_s});
             return simpleAction([this, choice] { setSource(Source(choice)); });
         }});
    interpreter.add({u"version"_s, u"<text>"_s, u"Sets the display's firmware version (4.1.0)."_s,
                     [this](CommandArguments& arguments) {
                         const QString version = arguments.rest(u"the version"_s);
                         return simpleAction([this, version] { setVersion(version); });
                     }});
}
