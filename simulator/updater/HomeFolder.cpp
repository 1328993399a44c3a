#include "simulator/updater/HomeFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTimer>

#include <chrono>
#include <cstdio>

using namespace std::chrono_literals;

namespace simulator
{

void quitWithFolder(const QString& folder, QObject* owner)
{
    QDir().mkpath(folder);
    auto* const timer = new QTimer(owner);
    QObject::connect(timer, &QTimer::timeout, owner, [folder] {
        if (!QFileInfo::exists(folder))
            QCoreApplication::quit();
    });
    timer->start(200ms);
}

void closeStandardStreams()
{
    const QByteArray nowhere = QProcess::nullDevice().toLocal8Bit();
    for (std::FILE* stream : {stdout, stderr}) {
        if (!std::freopen(nowhere.constData(), "w", stream))
            std::fclose(stream);
    }
}

} // namespace simulator
