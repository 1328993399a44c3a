#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>

namespace simulator
{

class CommandInterpreter;

/// One area of what the simulator plays, with its own state and commands. A new area is a new
/// feature that Simulator owns; nothing else has to know of it. Main thread only.
class Feature : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// One word: heads its commands in the help and its part of the status.
    virtual QString name() const = 0;
    virtual void addCommands(CommandInterpreter& interpreter) = 0;
    /// Its part of the answer to the command `status`, or nothing.
    virtual QJsonObject status() const { return {}; }

signals:
    /// Something a waiting command may be waiting for.
    void changed();
};

} // namespace simulator
