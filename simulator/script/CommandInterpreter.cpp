#include "simulator/script/CommandInterpreter.h"

#include <algorithm>
#include <utility>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

QString withUsage(const Command& command)
{
    return command.usage.isEmpty() ? command.name : command.name + u' ' + command.usage;
}

QString indented(const QString& text, int columns)
{
    const QString margin(columns, u' ');
    return margin + QString(text).replace(u'\n', u'\n' + margin) + u'\n';
}

} // namespace

QString simulator::wordList(const QStringList& words)
{
    constexpr qsizetype WordsPerLine = 6;
    QStringList lines;
    for (qsizetype i = 0; i < words.size(); i += WordsPerLine)
        lines.append(words.mid(i, WordsPerLine).join(u", "_s));
    return lines.join(u",\n"_s);
}

void CommandInterpreter::beginSection(const QString& title)
{
    m_sections.append({title, {}});
}

void CommandInterpreter::add(Command command)
{
    Q_ASSERT_X(!find(command.name), "CommandInterpreter::add", "two commands of one name");
    m_sections.last().commands.append(std::move(command));
}

void CommandInterpreter::addSwitch(const QString& name, const QString& help,
                                   std::function<void(bool)> set)
{
    add({name, u"on|off"_s, help, [set = std::move(set)](CommandArguments& arguments) {
             return simpleAction([set, on = arguments.onOff()] { set(on); });
         }});
}

CommandInterpreter::Line CommandInterpreter::parse(const QString& text) const
{
    if (text.trimmed().isEmpty() || text.trimmed().startsWith(u'#'))
        return {};
    CommandArguments arguments(text);
    QString name = arguments.word(u"the command"_s);
    if (isFamily(name) && !arguments.atEnd())
        name += u' ' + arguments.word({});
    const Command* command = find(name);
    if (!command)
        return {{}, u"there is no command \"%1\" (see --help)"_s.arg(name)};

    CommandAction action = command->parse(arguments);
    if (arguments.error().isEmpty() && !arguments.atEnd())
        arguments.fail(u"\"%1\" is one argument too many"_s.arg(arguments.peek()));
    if (arguments.error().isEmpty())
        return {std::move(action), {}};
    return {{}, u"%1: %2 (usage: %3)"_s.arg(name, arguments.error(), withUsage(*command))};
}

bool CommandInterpreter::isFamily(const QString& word) const
{
    return std::ranges::any_of(m_sections, [&](const Section& section) {
        return std::ranges::any_of(section.commands, [&](const Command& command) {
            return command.name.startsWith(word + u' ');
        });
    });
}

QString CommandInterpreter::helpText() const
{
    QString help;
    for (const Section& section : m_sections) {
        help += u"\nCommands, %1:\n"_s.arg(section.title);
        for (const Command& command : section.commands)
            help += indented(withUsage(command), 2) + indented(command.help, 6);
    }
    return help;
}

const Command* CommandInterpreter::find(const QString& name) const
{
    for (const Section& section : m_sections) {
        for (const Command& command : section.commands) {
            if (command.name == name)
                return &command;
        }
    }
    return nullptr;
}
