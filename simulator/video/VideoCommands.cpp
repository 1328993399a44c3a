// The commands of VideoFeature.

#include "simulator/script/CommandInterpreter.h"
#include "simulator/video/VideoFeature.h"

using namespace simulator;
using namespace Qt::StringLiterals;

void VideoFeature::addCommands(CommandInterpreter& interpreter)
{
    addWriterCommands(interpreter);
    addFaultCommands(interpreter);
    addExpectations(interpreter);
}

void VideoFeature::addWriterCommands(CommandInterpreter& interpreter)
{
    interpreter.add(
        u"video start"_s,
        u"Writes the display's set-up screen as frames into the shared memory and receives the\n"
        "pointer's datagrams on UDP port 49176. The set-up begins with its first step (welcome,\n"
        "language, network, room-name, finish). Pressing its buttons leads through the steps, and\n"
        "after the last one the display reports mode 1. Prints \"setup\" with the buttons of each\n"
        "step, \"pointer\" and \"button\"."_s,
        [this] { return start(); });
    interpreter.add(u"video stop"_s, u"Stops writing and removes the shared memory."_s,
                    [this] { stop(); });
    interpreter.add(
        {u"video size"_s, u"<width> <height>"_s,
         u"Sets the size of the frames (1920 1080): even, at most that of 3840 x 2160."_s,
         [this](CommandArguments& arguments) {
             constexpr int Largest = 0xFFFF;
             const int width = arguments.integer(u"the width"_s, 2, Largest);
             const int height = arguments.integer(u"the height"_s, 2, Largest);
             return simpleAction([this, width, height] { return setSize(width, height); });
         }});
    interpreter.add({u"video rate"_s, u"<1..200>"_s, u"Sets the frames per second (30)."_s,
                     [this](CommandArguments& arguments) {
                         const int rate = arguments.integer(u"the rate"_s, 1, 200);
                         return simpleAction([this, rate] { setRate(rate); });
                     }});
}

void VideoFeature::addFaultCommands(CommandInterpreter& interpreter)
{
    interpreter.add(u"video stall"_s,
                    u"Announces no more frames, while the shared memory stays, until resume."_s,
                    [this] { return stall(); });
    interpreter.add(u"video resume"_s, u"Continues after stall."_s, [this] { return resume(); });
    interpreter.add(
        u"video die"_s,
        u"The writer dies: the names of shared memory and event vanish, until return."_s,
        [this] { return die(); });
    interpreter.add(u"video cut"_s,
                    u"Truncates the shared memory under the program and keeps announcing frames,\n"
                    "until return. Linux only."_s,
                    [this] { return cutShort(); });
    interpreter.add(u"video return"_s,
                    u"Returns after die or cut, with new objects under the old names."_s,
                    [this] { return comeBack(); });
    interpreter.add(
        {u"video hostile"_s, u"<kind> [<frames>]"_s,
         u"Makes the next frame, or that many frames, wrong. Kinds:\n"_s +
             wordList(FrameWriter::faultNames()) +
             u"\n(torn: right when announced, and changed while it is read)."_s,
         [this](CommandArguments& arguments) {
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
                     [this](CommandArguments& arguments) {
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
                                              u"the set-up did not reach that step"_s);
             };
         }});
}
