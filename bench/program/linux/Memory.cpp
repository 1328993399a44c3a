#include "bench/program/ProgramRun.h"

#include <QFile>

#include <unistd.h>

double ProgramRun::residentMegabytes() const
{
    QFile file(QStringLiteral("/proc/%1/statm").arg(pid()));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const double pages = file.readAll().split(' ').value(1).toDouble();
    return pages * double(sysconf(_SC_PAGESIZE)) / 1e6;
}
