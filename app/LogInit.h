#pragma once

#include <QString>

#include <string>

/// Folder for the log files of earlier runs. Like the flags of glog it is initialised from the
/// environment (GLOG_log_backup_dir); InitLog() sets it. Main thread.
extern std::string FLAGS_log_backup_dir;

/// Sets up the process-wide log and moves the log files of earlier runs to the backup folder.
/// Failures are logged and do not stop the program. Call it on the main thread before other threads
/// start and before our own crash handlers are installed, which chain to those installed here. A
/// further call only changes the folders and moves files.
/// @param logDir  folder of the log; created by the first line
/// @param backupDir  folder for older logs; created with its parents
/// @param fileName  file name of the executable; log file names start with it
/// @param keepCount  number of older logs to keep; 0 keeps all
void InitLog(const QString& logDir, const QString& backupDir, const QString& fileName,
             int keepCount);

/// Moves the files in `logDir` that match the wildcard `nameFilter` to `backupDir`. A file whose
/// name exists there is renamed to its base name (up to the first dot) + "_x.log".
void MoveLogFile(const QString& nameFilter, const QString& logDir, const QString& backupDir);

/// Deletes files in `backupDir` that match the wildcard `nameFilter` until `keepCount` remain,
/// beginning with those whose name carries a time in the future, then with the lexicographically
/// smallest name.
void ClearBackLog(const QString& nameFilter, int keepCount, const QString& backupDir);
