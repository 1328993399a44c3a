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
    : m_private(std::make_unique<Private>())
{
    const std::wstring mutexName = (name + "-start"_L1).toStdWString();
    m_private->mutex = CreateMutexW(nullptr, FALSE, mutexName.c_str());
    if (!m_private->mutex)
        return;
    const DWORD result = WaitForSingleObject(m_private->mutex, static_cast<DWORD>(patienceMs));
    m_private->held = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

InstanceLock::~InstanceLock()
{
    if (m_private->held)
        ReleaseMutex(m_private->mutex);
    if (m_private->mutex)
        CloseHandle(m_private->mutex);
}

bool InstanceLock::isHeld() const
{
    return m_private->held;
}

int handOverPatienceMs()
{
    return HandOverPatienceMs;
}

QByteArray passOnForegroundRight()
{
    AllowSetForegroundWindow(ASFW_ANY);
    return {};
}

void takeForegroundRight(const QByteArray&)
{
    // The right was passed on to this process directly.
}

} // namespace platform
