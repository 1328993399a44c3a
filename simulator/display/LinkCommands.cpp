#include "simulator/display/LinkCommands.h"

#include "simulator/display/DisplayLink.h"
#include "simulator/display/MalformedLine.h"
#include "simulator/script/CommandInterpreter.h"
#include "simulator/script/EventLog.h"

#include <limits>
#include <optional>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

constexpr auto DefaultClientLimit = std::chrono::seconds(30);

// Understands \n, \r, \t, \\ and \xHH. Nothing if there is any other escape.
std::optional<QByteArray> unescaped(const QByteArray& text)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) != '\\') {
            bytes.append(text.at(i));
            continue;
        }
        const QByteArray kind = text.mid(++i, 1);
        const qsizetype simple = kind.isEmpty() ? -1 : QByteArrayView("nrt\\").indexOf(kind);
        bool isHexadecimal = false;
        const int number = text.mid(i + 1, 2).toInt(&isHexadecimal, 16);
        if (simple >= 0) {
            bytes.append("\n\r\t\\"[simple]);
        } else if (kind == "x" && isHexadecimal && i + 2 < text.size()) {
            bytes.append(char(number));
            i += 2;
        } else {
            return std::nullopt;
        }
    }
    return bytes;
}

} // namespace

LinkCommands::LinkCommands(DisplayLink& link, EventLog& log, QObject* parent)
    : Feature(parent)
    , m_link(link)
    , m_log(log)
{
    connect(&link, &DisplayLink::clientConnected, this, &Feature::changed);
    connect(&link, &DisplayLink::clientDisconnected, this, &Feature::changed);
}

QString LinkCommands::name() const
{
    return u"channel"_s;
}

void LinkCommands::addCommands(CommandInterpreter& interpreter)
{
    interpreter.add(
        {u"wait-client"_s, u"[<seconds>]"_s,
         u"Waits until a program is connected and fails after that time (30)."_s,
         [this](CommandArguments& arguments) -> CommandAction {
             const auto limit = arguments.atEnd() ? std::chrono::milliseconds(DefaultClientLimit)
                                                  : arguments.seconds(u"the time"_s);
             return [this, limit] {
                 return CommandOutcome::until([this] { return m_link.clientCount() > 0; }, limit,
                                              u"no program connected"_s);
             };
         }});
    addSendCommands(interpreter);
    addFaultCommands(interpreter);
}

void LinkCommands::addSendCommands(CommandInterpreter& interpreter)
{
    interpreter.add(
        {u"send"_s, u"<id> <text>"_s,
         u"Sends a message unchanged, in any state of the display. The text need not be JSON."_s,
         [this](CommandArguments& arguments) {
             const int id = arguments.integer(u"the id"_s, std::numeric_limits<int>::min(),
                                              std::numeric_limits<int>::max());
             const QByteArray text = arguments.rest(u"the text"_s).toUtf8();
             return simpleAction([this, id, text] { m_link.send(id, text); });
         }});
    interpreter.add({u"raw"_s, u"<bytes>"_s,
                     u"Sends a line of bytes; \\n, \\r, \\t, \\\\ and \\xHH are understood, and a\n"
                     "newline is added."_s,
                     [this](CommandArguments& arguments) {
                         const auto bytes = unescaped(arguments.rest(u"the bytes"_s).toUtf8());
                         if (!bytes)
                             arguments.fail(
                                 u"there is no such escape (\\n, \\r, \\t, \\\\, \\xHH)"_s);
                         return simpleAction(
                             [this, line = bytes.value_or(QByteArray()) + '\n'] { sendRaw(line); });
                     }});
    interpreter.add({u"malformed"_s, u"<kind> [<count>]"_s,
                     u"Sends malformed lines, one or as many as the count says. Kinds:\n"_s +
                         wordList(malformedLineKinds()) + u'.',
                     [this](CommandArguments& arguments) {
                         const int kind = arguments.choice(malformedLineKinds());
                         const int count = arguments.atEnd()
                                               ? 1
                                               : arguments.integer(u"the count"_s, 1, 1'000'000);
                         return simpleAction([this, kind, count] {
                             for (int i = 0; i < count; ++i)
                                 sendRaw(malformedLine(kind));
                         });
                     }});
}

void LinkCommands::addFaultCommands(CommandInterpreter& interpreter)
{
    interpreter.add(u"drop-client"_s,
                    u"Breaks the connection to every program; programs come back in a second."_s,
                    [this] { m_link.dropClients(); });
    interpreter.addSwitch(
        u"reading"_s,
        u"While off, nothing that programs send is read and their buffers fill (on)."_s,
        [this](bool on) { m_link.setReading(on); });
    interpreter.add({u"link"_s, u"up|down"_s,
                     u"Down: breaks the connections and stops listening, until up (up)."_s,
                     [this](CommandArguments& arguments) {
                         const bool up = arguments.choice({u"down"_s, u"up"_s}) == 1;
                         return simpleAction([this, up] { return setLinkUp(up); });
                     }});
}

QString LinkCommands::setLinkUp(bool up)
{
    if (!up)
        m_link.close();
    return up && !m_link.isListening() ? m_link.listen() : QString();
}

void LinkCommands::sendRaw(const QByteArray& bytes)
{
    m_log.write(u"sent-raw"_s, {{u"bytes"_s, bytes.size()}, {u"clients"_s, m_link.clientCount()}});
    m_link.sendRaw(bytes);
}

QJsonObject LinkCommands::status() const
{
    return {{u"socket"_s, m_link.socketName()},
            {u"listening"_s, m_link.isListening()},
            {u"clients"_s, m_link.clientCount()}};
}
