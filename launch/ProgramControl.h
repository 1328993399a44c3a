#pragma once

#include <QString>
#include <QStringList>

#include <stop_token>

/// The programs beside ours, as the status loop and the upgrade deal with them.
/// Operations block their caller and may be called from any thread; those that are given a stop
/// token may end unfinished once the stop is requested.
class ProgramControl
{
public:
    virtual ~ProgramControl() = default;

    /// Ends every process of this image name; false when there was none or it could not be ended.
    virtual bool killProcess(const QString& name, const std::stop_token& stop) = 0;
    /// Starts the program of this name beside the application unless it is running.
    virtual void keepProcessAlive(const QString& name, const std::stop_token& stop) = 0;
    /// Starts the program of this name beside the application, detached; give at least two
    /// arguments.
    virtual bool startProcess(const QString& name, const QStringList& arguments) = 0;
};
