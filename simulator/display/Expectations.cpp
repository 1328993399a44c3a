#include "simulator/display/Expectations.h"

#include "simulator/display/MessagePattern.h"
#include "simulator/script/CommandInterpreter.h"

#include <QJsonDocument>

#include <algorithm>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

constexpr size_t kMaxRemembered = 10'000;
constexpr auto kDefaultLimit = std::chrono::seconds(5);

std::chrono::milliseconds parseLimit(CommandArguments& arguments)
{
    if (arguments.atEnd())
        return kDefaultLimit;
    arguments.word({}); // "within": a pattern ends nowhere else
    return arguments.seconds(u"the time"_s);
}

} // namespace

QString Expectations::name() const
{
    return u"expectations"_s;
}

void Expectations::addCommands(CommandInterpreter& interpreter)
{
    addExpect(
        interpreter, u"expect"_s,
        u"Waits for a message from the program and fails after that time (5). Conditions:\n"
        "key=value, key!=value (present with another value), key (present). Values are JSON;\n"
        "what is not JSON is a text. Messages that have come already count, each for one\n"
        "expectation only."_s,
        m_received);
    addExpect(interpreter, u"expect-sent"_s,
              u"The same for a message that the simulator has sent to a program."_s, m_sent);
    addExpectNone(interpreter);
    interpreter.add({u"forget"_s,
                     {},
                     u"Makes later expectations look only at messages from now on."_s,
                     [this](CommandArguments&) {
                         return simpleAction([this] {
                             m_received.clear();
                             m_sent.clear();
                         });
                     }});
}

void Expectations::addExpect(CommandInterpreter& interpreter, const QString& name,
                             const QString& help, Memory& memory)
{
    interpreter.add(
        {name, u"<id> [<condition> ...] [within <seconds>]"_s, help,
         [&memory](CommandArguments& arguments) -> CommandAction {
             const MessagePattern pattern = MessagePattern::parse(arguments);
             const auto limit = parseLimit(arguments);
             return [&memory, pattern, limit] {
                 return CommandOutcome::until(
                     [&memory, pattern] { return take(memory, pattern); }, limit,
                     u"no such message within %1 s"_s.arg(double(limit.count()) / 1000));
             };
         }});
}

void Expectations::addExpectNone(CommandInterpreter& interpreter)
{
    interpreter.add({u"expect-none"_s, u"<id> [<condition> ...] [within <seconds>]"_s,
                     u"Fails when such a message has come or comes within that time (5)."_s,
                     [this](CommandArguments& arguments) -> CommandAction {
                         const MessagePattern pattern = MessagePattern::parse(arguments);
                         const auto limit = parseLimit(arguments);
                         return [this, pattern, limit] {
                             return CommandOutcome::unless(
                                 [this, pattern] { return take(m_received, pattern); }, limit,
                                 u"such a message came"_s);
                         };
                     }});
}

void Expectations::noteReceived(int id, const QByteArray& text)
{
    note(m_received, id, text);
}

void Expectations::noteSent(int id, const QByteArray& text)
{
    note(m_sent, id, text);
}

void Expectations::note(Memory& memory, int id, const QByteArray& text)
{
    memory.push_back({id, QJsonDocument::fromJson(text).object()});
    if (memory.size() > kMaxRemembered)
        memory.pop_front();
    emit changed();
}

bool Expectations::take(Memory& memory, const MessagePattern& pattern)
{
    const auto found = std::find_if(memory.begin(), memory.end(), [&](const Noted& noted) {
        return pattern.matches(noted.id, noted.message);
    });
    if (found == memory.end())
        return false;
    memory.erase(found);
    return true;
}
