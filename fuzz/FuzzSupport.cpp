#include "fuzz/FuzzSupport.h"

#include <glog/logging.h>

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    FLAGS_minloglevel = google::GLOG_FATAL;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

void fuzz::require(bool isMet, const char* what)
{
    if (isMet)
        return;
    std::fprintf(stderr, "requirement not met: %s\n", what);
    std::abort();
}

QString fuzz::temporaryFile(const QString& name)
{
    static const QTemporaryDir s_folder;
    return s_folder.filePath(name);
}

void fuzz::write(const QString& path, QByteArrayView content)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                file.write(content.data(), content.size()) == content.size(),
            "the input file can be written");
}
