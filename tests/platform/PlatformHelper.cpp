// platform_helper <mode> [arguments]: child process of the tests of platform/.

#include "CrashModes.h"

#include "platform/CrashHandler.h"
#include "platform/Folders.h"
#include "platform/InstanceObjects.h"
#include "platform/Processes.h"
#include "platform/Registry.h"
#include "platform/ThreadName.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <stdexcept>
#include <thread>

using namespace Qt::StringLiterals;

namespace
{

void print(const QByteArray& line)
{
    std::printf("%s\n", line.constData());
    std::fflush(stdout);
}

int waitForEnd()
{
    print("ready");
    while (std::getchar() != EOF) {
    }
    return 0;
}

int writeValues(const QString& key, const QString& prefix, int count)
{
    for (int i = 0; i < count; ++i) {
        if (!platform::writeRegistry(key, prefix + QString::number(i), i))
            return 1;
    }
    return 0;
}

// Deliberate crashes. Volatile values keep the compiler from removing them.

std::mutex g_logLock;

void writeLine(const char* text)
{
    const std::scoped_lock lock(g_logLock);
    std::fprintf(stderr, "%s\n", text);
}

int overflowStack(int depth)
{
    volatile char block[4096];
    block[0] = static_cast<char>(depth);
    if (depth < 0) // never; unknown to the compiler
        return 0;
    return overflowStack(depth + 1) + block[0];
}

void crash(const QString& how)
{
    if (how == "forbidden"_L1)
        touchForbiddenPage();
    else if (how == "overflow"_L1)
        overflowStack(0);
    else if (how == "bus"_L1)
        touchBeyondEnd();
    else if (how == "abort"_L1)
        std::abort();
    else if (how == "throw"_L1)
        throw std::runtime_error("boom");
    else if (how == "locked"_L1)
        g_logLock.lock(), touchForbiddenPage();
}

int runCrash(const QString& how, bool onWorker)
{
    installEarlierHandler();
    platform::installCrashHandler(writeLine);
    if (!onWorker) {
        crash(how);
        return 0;
    }
    std::thread([&how] {
        platform::nameCurrentThread("crashing worker");
        crash(how);
    }).join();
    return 0;
}

int run(const QStringList& arguments)
{
    const QString mode = arguments.value(1);
    const QString first = arguments.value(2);
    if (mode == "wait"_L1)
        return waitForEnd();
    if (mode == "settings"_L1) {
        print(platform::settingsFolder().toUtf8());
        return 0;
    }
    if (mode == "registry"_L1)
        return writeValues(first, arguments.value(3), arguments.value(4).toInt());
    if (mode == "lock"_L1) {
        const platform::InstanceLock lock(first);
        return lock.isHeld() ? waitForEnd() : 1;
    }
    if (mode == "crash"_L1)
        return runCrash(first, arguments.value(3) == "worker"_L1);
    return 2;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    return run(QCoreApplication::arguments());
}
