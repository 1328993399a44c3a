#include "app/LogInit.h"

#include "logging/Log.h"
#include "logging/LogBackend.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <glog/logging.h>

#include <algorithm>
#include <string_view>

using namespace Qt::StringLiterals;

namespace
{

QFileInfoList matchingFiles(const QString& folder, const QString& nameFilter)
{
    return QDir(folder).entryInfoList({nameFilter}, QDir::Files, QDir::Unsorted);
}

QString targetPath(const QString& folder, const QString& name)
{
    return QDir::cleanPath(folder + u'/' + name);
}

} // namespace

std::string FLAGS_log_backup_dir = qgetenv("GLOG_log_backup_dir").toStdString();

void InitLog(const QString& logDir, const QString& backupDir, const QString& fileName,
             int keepCount)
{
    const bool firstCall = Log::start(fileName);
    Log::setFile(logDir + QDir::separator() + fileName, u".log"_s);

    if (firstCall) { // a second installation would replace our own crash handlers
        google::InstallFailureSignalHandler();
        google::InstallFailureWriter([](const char* text, std::size_t length) {
            const std::string_view line(text, std::find(text, text + length, '\0'));
            // NOLINTNEXTLINE(bugprone-lambda-function-name): the log names the lambda
            Log::write(Log::Severity::Error, __func__, line);
        });
    }

    FLAGS_logbufsecs = 0;
    FLAGS_logtostderr = false;
    FLAGS_alsologtostderr = true;
    FLAGS_max_log_size = 8;
    FLAGS_stop_logging_if_full_disk = true;
    FLAGS_colorlogtostderr = true;
    FLAGS_log_backup_dir = backupDir.toStdString();

    QDir().mkpath(backupDir);
    const auto nameFilter = fileName + "*.log"_L1;
    MoveLogFile(nameFilter, logDir, backupDir);
    if (keepCount != 0)
        ClearBackLog(nameFilter, keepCount, backupDir);
}

void MoveLogFile(const QString& nameFilter, const QString& logDir, const QString& backupDir)
{
    // Listed before the first log line, which creates this run's own file.
    for (const auto& info : matchingFiles(logDir, nameFilter)) {
        const auto source = info.absoluteFilePath();
        QFile file(source);
        auto target = targetPath(backupDir, info.fileName());
        if (file.rename(target)) {
            Log::info("MoveLogFile") << "Moved file:" << source << " to:" << target;
            continue;
        }
        target = targetPath(backupDir, info.baseName() + "_x.log"_L1);
        if (file.rename(target)) {
            Log::info("MoveLogFile")
                << "Moved file with backup name:" << source << " to:" << target;
        } else {
            Log::info("MoveLogFile")
                << "Failed to move file:" << source << " Error:" << file.errorString();
        }
    }
}

void ClearBackLog(const QString& nameFilter, int keepCount, const QString& backupDir)
{
    QStringList paths;
    for (const auto& info : matchingFiles(backupDir, nameFilter))
        paths << info.absoluteFilePath();
    std::sort(paths.begin(), paths.end());
    // A wrong clock may have stamped files in the future; they must not outlast all later ones.
    const auto now = QDateTime::currentDateTime();
    const qsizetype stampAt = nameFilter.indexOf(u'*');
    std::stable_partition(paths.begin(), paths.end(), [&](const QString& path) {
        const QString stamp = QFileInfo(path).fileName().mid(stampAt, 15);
        const auto time = QDateTime::fromString(stamp, u"yyyyMMdd-HHmmss"_s);
        return time.isValid() && time > now;
    });

    const auto surplus = std::max<qsizetype>(paths.size() - std::max(keepCount, 0), 0);
    for (const auto& path : paths.first(surplus)) {
        QFile file(path);
        if (file.remove())
            Log::info("ClearBackLog") << "Removed old log file:" << path;
        else
            Log::info("ClearBackLog")
                << "Failed to remove file:" << path << " Error:" << file.errorString();
    }
}
