#pragma once

#include <QString>

#include <string>

/// Folder for the log files of earlier runs. It stands beside glog's own flags and, like them,
/// takes its first value from the environment, here from GLOG_log_backup_dir; InitLog() sets it.
extern std::string FLAGS_log_backup_dir;

/// Sets the process-wide log up and tidies the files of earlier runs away. Nothing in it stops the
/// program: what fails is logged. Main thread, before any other exists and before our own crash
/// handlers, which chain to the ones it installs. A further call only changes folders and tidies.
/// @param logDir  folder of the log; made when the first line needs it.
/// @param backupDir  folder for older logs; made with its parents.
/// @param fileName  the executable's file name, which log files are named after.
/// @param keepCount  how many older logs to keep; 0 keeps all.
void InitLog(const QString& logDir, const QString& backupDir, const QString& fileName,
             int keepCount);

/// Moves the files in `logDir` that match the wildcard `nameFilter` to `backupDir`. A name that is
/// taken there becomes the base name (up to the first dot) with "_x.log".
void MoveLogFile(const QString& nameFilter, const QString& logDir, const QString& backupDir);

/// Deletes files in `backupDir` that match the wildcard `nameFilter`, those with the smallest names
/// first, until `keepCount` remain.
void ClearBackLog(const QString& nameFilter, int keepCount, const QString& backupDir);
