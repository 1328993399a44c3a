#include "launch/SystemProgramControl.h"

#include "launch/ProcessManager.h"

bool SystemProgramControl::killProcess(const QString& name)
{
    return ProcessManager::killProcess(name);
}

void SystemProgramControl::keepProcessAlive(const QString& name)
{
    ProcessManager::keepProcessAlive(name);
}

bool SystemProgramControl::startProcess(const QString& name, const QStringList& arguments)
{
    return ProcessManager::startProcess(name, arguments);
}
