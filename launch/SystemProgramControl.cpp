#include "launch/SystemProgramControl.h"

#include "launch/ProcessManager.h"

bool SystemProgramControl::killProcess(const QString& name, const std::stop_token& stop)
{
    return ProcessManager::killProcess(name, stop);
}

void SystemProgramControl::keepProcessAlive(const QString& name, const std::stop_token& stop)
{
    ProcessManager::keepProcessAlive(name, stop);
}

bool SystemProgramControl::startProcess(const QString& name, const QStringList& arguments)
{
    return ProcessManager::startProcess(name, arguments);
}
