#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>

namespace simulator
{

class CommandInterpreter;

/// One area of the simulation, with its own state and commands. Simulator owns the features, which
/// do not depend on each other. Main thread only.
class Feature : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// One word: the title of its commands in the help and the key of its part of the status.
    virtual QString name() const = 0;
    virtual void addCommands(CommandInterpreter& interpreter) = 0;
    /// Its part of the answer to the command "status". Empty if there is none.
    virtual QJsonObject status() const { return {}; }

signals:
    /// A state changed on which a waiting command may depend.
    void changed();
};

} // namespace simulator
