#pragma once

#include <QString>
#include <QStringList>

#include <stop_token>

/// Programs beside this one, as the status loop and the upgrade need them. The operations block
/// their caller and may be called from any thread. Those with a stop token may end unfinished when
/// the stop is requested.
class ProgramControl
{
public:
    virtual ~ProgramControl() = default;

    /// Ends every process of this image name; false if there was none or one could not be ended.
    virtual bool killProcess(const QString& name, const std::stop_token& stop) = 0;
    /// Starts the program of this name beside the application unless it is running.
    virtual void keepProcessAlive(const QString& name, const std::stop_token& stop) = 0;
    /// Starts the program of this name beside the application, detached. The log names the first
    /// two arguments, so callers pass at least two.
    virtual bool startProcess(const QString& name, const QStringList& arguments,
                              const std::stop_token& stop) = 0;
};
