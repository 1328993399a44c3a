#pragma once

#include "simulator/script/CommandArguments.h"
#include "simulator/script/CommandOutcome.h"

#include <QList>
#include <QString>

#include <functional>

namespace simulator
{

/// What a command does once its line has been checked.
using CommandAction = std::function<CommandOutcome()>;

/// An action that is done once @p function has returned.
CommandAction simpleAction(std::function<void()> function);

struct Command {
    QString name;  ///< one word, or a family and a word, as in "account add"
    QString usage; ///< the arguments, as the help shows them
    QString help;
    /// Checks the arguments and binds them to the action; runs nothing yet.
    std::function<CommandAction(CommandArguments&)> parse;
};

/// The one grammar of standard input and scenario files. Lines are checked and run in two steps, so
/// that a scenario with a mistake in its last line does not start.
class CommandInterpreter
{
public:
    struct Line {
        CommandAction action; ///< empty for blank lines, comments and errors
        QString error;
    };

    /// Begins a group of commands in the help.
    void beginSection(const QString& title);
    void add(Command command);

    Line parse(const QString& text) const;
    QString helpText() const;

private:
    struct Section {
        QString title;
        QList<Command> commands;
    };

    const Command* find(const QString& name) const;
    bool isFamily(const QString& word) const;

    QList<Section> m_sections;
};

} // namespace simulator
