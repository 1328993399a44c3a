#include "simulator/script/FlowCommands.h"

#include "simulator/script/CommandInterpreter.h"
#include "simulator/script/EventLog.h"

#include <optional>

using namespace simulator;
using namespace Qt::StringLiterals;

QString FlowCommands::name() const
{
    return u"script"_s;
}

void FlowCommands::addCommands(CommandInterpreter& interpreter)
{
    interpreter.add({u"wait"_s, u"<seconds>"_s, u"Waits for this time."_s,
                     [](CommandArguments& arguments) -> CommandAction {
                         const auto limit = arguments.seconds(u"the time"_s);
                         return [limit] { return CommandOutcome::pause(limit); };
                     }});
    interpreter.add(
        {u"echo"_s, u"<text>"_s, u"Prints {\"event\":\"echo\",\"text\":<text>}."_s,
         [this](CommandArguments& arguments) -> CommandAction {
             const QString text = arguments.rest(u"the text"_s);
             return simpleAction([this, text] { m_log.write(u"echo"_s, {{u"text"_s, text}}); });
         }});
    interpreter.add({u"quit"_s, u"[<exit code>]"_s,
                     u"Ends the simulator. Without a code: 0, or 1 if an expectation failed."_s,
                     [this](CommandArguments& arguments) -> CommandAction {
                         std::optional<int> code;
                         if (!arguments.atEnd())
                             code = arguments.integer(u"the exit code"_s, 0, 255);
                         return [this, code] {
                             emit quitRequested(code.value_or(m_failed ? 1 : 0));
                             return CommandOutcome::quit();
                         };
                     }});
}
