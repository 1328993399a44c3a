#pragma once

#include "simulator/script/CommandArguments.h"
#include "simulator/script/CommandOutcome.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <type_traits>
#include <utility>

namespace simulator
{

/// What a command does once its line has been checked.
using CommandAction = std::function<CommandOutcome()>;

/// An action that calls @p function. If the function returns a QString that is not empty, the
/// action fails for that reason.
template <typename Function>
CommandAction simpleAction(Function function)
{
    return [function = std::move(function)] {
        if constexpr (std::is_void_v<decltype(function())>) {
            function();
            return CommandOutcome::done();
        } else {
            const QString error = function();
            return error.isEmpty() ? CommandOutcome::done() : CommandOutcome::failed(error);
        }
    };
}

/// The words separated by commas, a few on each line, for a help text.
QString wordList(const QStringList& words);

struct Command {
    QString name;  ///< one word, or a family and a word, as in "account add"
    QString usage; ///< the arguments, as the help shows them
    QString help;
    /// Checks the arguments and returns the action bound to them, which has not run yet.
    std::function<CommandAction(CommandArguments&)> parse;
};

/// The grammar shared by standard input and scenario files. Lines are parsed first and run later,
/// so that a scenario with an error in its last line does not start.
class CommandInterpreter
{
public:
    struct Line {
        CommandAction action; ///< empty for blank lines, for comments and after an error
        QString error;
    };

    /// Begins a group of commands in the help.
    void beginSection(const QString& title);
    void add(Command command);
    /// Adds a command without arguments; see simpleAction() for @p function.
    template <typename Function>
    void add(const QString& name, const QString& help, Function function)
    {
        add({name, {}, help, [action = simpleAction(std::move(function))](CommandArguments&) {
                 return action;
             }});
    }
    /// Adds a command that takes "on" or "off".
    void addSwitch(const QString& name, const QString& help, std::function<void(bool)> set);

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
