#include "simulator/display/Expectations.h"

#include "simulator/script/CommandInterpreter.h"

#include <QJsonDocument>

using namespace simulator;
using namespace Qt::StringLiterals;

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
        "other text is a string. A message that came before counts too. Each message fulfils\n"
        "one expectation only."_s,
        m_received);
    addExpect(interpreter, u"expect-sent"_s,
              u"The same for a message that the simulator has sent to a program."_s, m_sent);
    interpreter.add({u"expect-none"_s, u"<id> [<condition> ...] [within <seconds>]"_s,
                     u"Fails when such a message has come or comes within that time (5)."_s,
                     [this](CommandArguments& arguments) {
                         const MessagePattern pattern = MessagePattern::parse(arguments);
                         return m_received.expectNone(pattern, arguments);
                     }});
    interpreter.add(u"forget"_s,
                    u"Makes later expectations look only at messages and requests from now on."_s,
                    [this] {
                        m_received.forget();
                        m_sent.forget();
                        emit forgotten();
                    });
}

void Expectations::addExpect(CommandInterpreter& interpreter, const QString& name,
                             const QString& help, MessageMemory& memory)
{
    interpreter.add({name, u"<id> [<condition> ...] [within <seconds>]"_s, help,
                     [&memory](CommandArguments& arguments) {
                         const MessagePattern pattern = MessagePattern::parse(arguments);
                         return memory.expect(pattern, arguments);
                     }});
}

void Expectations::noteReceived(int id, const QByteArray& text)
{
    m_received.note(id, QJsonDocument::fromJson(text).object());
    emit changed();
}

void Expectations::noteSent(int id, const QByteArray& text)
{
    m_sent.note(id, QJsonDocument::fromJson(text).object());
    emit changed();
}
