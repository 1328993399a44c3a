#include "platform/InstanceObjects.h"

#include <QSharedMemory>

#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr int HandOverPatienceMs = 1'000;

} // namespace

namespace platform
{

void setInstanceKey(QSharedMemory& segment, const QString& name)
{
    segment.setKey(name); // names of mappings belong to the session
}

QString instanceServerName(const QString& name)
{
    DWORD session = 0;
    ProcessIdToSessionId(GetCurrentProcessId(), &session);
    return u"%1-%2"_s.arg(name).arg(session); // names of pipes belong to the machine
}

void removeInstanceFolder()
{
    // There are no files on Windows.
}

class InstanceLock::Private
{
public:
    HANDLE mutex = nullptr;
    bool held = false;
};

InstanceLock::InstanceLock(const QString& name, int patienceMs)
    : d(std::make_unique<Private>())
{
    const std::wstring mutexName = (name + "-start"_L1).toStdWString();
    d->mutex = CreateMutexW(nullptr, FALSE, mutexName.c_str());
    if (!d->mutex)
        return;
    const DWORD result = WaitForSingleObject(d->mutex, static_cast<DWORD>(patienceMs));
    d->held = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

InstanceLock::~InstanceLock()
{
    if (d->held)
        ReleaseMutex(d->mutex);
    if (d->mutex)
        CloseHandle(d->mutex);
}

bool InstanceLock::isHeld() const
{
    return d->held;
}

int handOverPatienceMs()
{
    return HandOverPatienceMs;
}

void passOnForegroundRight()
{
    AllowSetForegroundWindow(ASFW_ANY);
}

} // namespace platform
