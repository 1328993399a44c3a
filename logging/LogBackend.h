#pragma once

#include <QString>

/// The part of the log that knows glog: the form of a line and the one file that all severities go
/// to. Only the program's start-up needs it.
namespace Log
{

/// Starts glog under the program's name with our line form. Until setFile() names a file, records
/// reach standard error only. Call it before the other threads start.
/// @return true on the first call; false on every later one, which changes nothing.
bool start(const QString& programName);

/// Sends all records to files named `base` + date and time + `extension` from now on. The file is
/// made when the first record needs it. Any thread, after start().
void setFile(const QString& base, const QString& extension);

} // namespace Log
