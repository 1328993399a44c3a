#include "platform/InstanceSegment.h"

#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr int HandOverPatienceMs = 1'000;

} // namespace

namespace platform
{

class InstanceLock::Private
{
public:
    HANDLE mutex = nullptr;
    bool held = false;
};

InstanceLock::InstanceLock(const QString& key, int patienceMs)
    : d(std::make_unique<Private>())
{
    const std::wstring name = (key + "-start"_L1).toStdWString();
    d->mutex = CreateMutexW(nullptr, FALSE, name.c_str());
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

} // namespace platform
