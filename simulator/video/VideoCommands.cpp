// The commands of VideoFeature.

#include "simulator/script/CommandInterpreter.h"
#include "simulator/video/VideoFeature.h"

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

CommandOutcome outcomeOf(const QString& error)
{
    return error.isEmpty() ? CommandOutcome::done() : CommandOutcome::failed(error);
}

} // namespace

void VideoFeature::addCommands(CommandInterpreter& interpreter)
{
    addWriterCommands(interpreter);
    addFaultCommands(interpreter);
    addExpectations(interpreter);
}

void VideoFeature::addWriterCommands(CommandInterpreter& interpreter)
{
    interpreter.add(
        {u"video start"_s,
         {},
         u"Writes the display's set-up screen as frames into the shared memory, and takes the\n"
         "pointer's datagrams on UDP port 49176. The set-up begins with its first step (welcome,\n"
         "language, network, room-name, finish); pressing its buttons leads on, and after the "
         "last\n"
         "the display reports mode 1. Prints \"setup\" with the buttons of each step, \"pointer\" "
         "and\n"
         "\"button\"."_s,
         [this](CommandArguments&) -> CommandAction {
             return [this] { return outcomeOf(start()); };
         }});
    interpreter.add(
        {u"video stop"_s, {}, u"Ends that; the shared memory goes."_s, [this](CommandArguments&) {
             return simpleAction([this] { stop(); });
         }});
    interpreter.add(
        {u"video size"_s, u"<width> <height>"_s,
         u"Sets the size of the frames (1920 1080): even, at most that of 3840 x 2160."_s,
         [this](CommandArguments& arguments) -> CommandAction {
             constexpr int Largest = 0xFFFF;
             const int width = arguments.integer(u"the width"_s, 2, Largest);
             const int height = arguments.integer(u"the height"_s, 2, Largest);
             return [this, width, height] { return outcomeOf(setSize(width, height)); };
         }});
    interpreter.add({u"video rate"_s, u"<1..200>"_s, u"Sets the frames a second (30)."_s,
                     [this](CommandArguments& arguments) -> CommandAction {
                         const int rate = arguments.integer(u"the rate"_s, 1, 200);
                         return simpleAction([this, rate] { setRate(rate); });
                     }});
}

void VideoFeature::addFaultCommands(CommandInterpreter& interpreter)
{
    interpreter.add({u"video stall"_s,
                     {},
                     u"Announces no more frames, while the shared memory stays, until resume."_s,
                     [this](CommandArguments&) -> CommandAction {
                         return [this] { return outcomeOf(stall()); };
                     }});
    interpreter.add({u"video resume"_s,
                     {},
                     u"Goes on after stall."_s,
                     [this](CommandArguments&) -> CommandAction {
                         return [this] { return outcomeOf(resume()); };
                     }});
    interpreter.add(
        {u"video die"_s,
         {},
         u"The writer dies: the names of shared memory and event vanish, until return."_s,
         [this](CommandArguments&) -> CommandAction {
             return [this] { return outcomeOf(die()); };
         }});
    interpreter.add(
        {u"video cut"_s,
         {},
         u"Cuts the shared memory short under the program and goes on announcing, until\n"
         "return. Linux only."_s,
         [this](CommandArguments&) -> CommandAction {
             return [this] { return outcomeOf(cutShort()); };
         }});
    interpreter.add({u"video return"_s,
                     {},
                     u"Comes back after die or cut, with new objects under the old names."_s,
                     [this](CommandArguments&) -> CommandAction {
                         return [this] { return outcomeOf(comeBack()); };
                     }});
    interpreter.add(
        {u"video hostile"_s, u"<kind> [<frames>]"_s,
         u"Makes that many of the next frames (1) wrong. Kinds: "_s +
             FrameWriter::faultNames().mid(0, 5).join(u", "_s) + u",\n"_s +
             FrameWriter::faultNames().mid(5).join(u", "_s) +
             u" (right when announced, and changed while it is read)."_s,
         [this](CommandArguments& arguments) -> CommandAction {
             const auto fault = FrameWriter::Fault(arguments.choice(FrameWriter::faultNames()));
             const int frames =
                 arguments.atEnd() ? 1 : arguments.integer(u"the number of frames"_s, 1, 1'000'000);
             return simpleAction([this, fault, frames] { setHostile(fault, frames); });
         }});
}

void VideoFeature::addExpectations(CommandInterpreter& interpreter)
{
    interpreter.add({u"expect-pointer"_s, u"[<condition> ...] [within <seconds>]"_s,
                     u"Waits for a pointer event, as \"expect\" does for a message. Keys: type "
                     u"(press, release,\n"
                     "move), x, y (fractions of the picture)."_s,
                     [this](CommandArguments& arguments) -> CommandAction {
                         const auto pattern = MessagePattern::parseConditions(0, arguments);
                         return m_pointerEvents.expect(pattern, arguments);
                     }});
    interpreter.add(
        {u"expect-step"_s, SetupFlow::stepNames().join(u'|') + u" [<seconds>]"_s,
         u"Waits until the set-up is at that step and fails after that time (30)."_s,
         [this](CommandArguments& arguments) -> CommandAction {
             const auto step = SetupFlow::Step(arguments.choice(SetupFlow::stepNames()));
             const auto limit = arguments.atEnd()
                                    ? std::chrono::milliseconds(std::chrono::seconds(30))
                                    : arguments.seconds(u"the time"_s);
             return [this, step, limit] {
                 return CommandOutcome::until([this, step] { return m_flow.step() == step; }, limit,
                                              u"the set-up did not get there"_s);
             };
         }});
}
