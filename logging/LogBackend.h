#pragma once

#include <QString>

/// The log's connection to glog: the form of a line, and the one file for all severities. Used by
/// the program's start-up only.
namespace Log
{

/// Initialises glog with the program's name and our line form. Until setFile() is called, records
/// go to standard error only. Call it before other threads start.
/// @return true on the first call; later calls have no effect
bool start(const QString& programName);

/// Writes all further records to files named `base` + date and time + `extension`. The first record
/// creates the file. Any thread, after start().
void setFile(const QString& base, const QString& extension);

} // namespace Log
