#include "bench/endurance/ComputerSleep.h"

#include "bench/faults/Faults.h"

#include <QProcess>

using namespace Qt::StringLiterals;

ComputerSleep::ComputerSleep()
    : m_faults(qEnvironmentVariable("VORN_FAULTS"))
{
    if (!m_faults.fileName().isEmpty() &&
        !m_faults.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        qFatal("The file of the clocks cannot be opened.");
}

void ComputerSleep::pass(std::chrono::hours length)
{
    if (m_faults.isOpen()) {
        m_total += length;
        const std::chrono::seconds shift = m_total;
        const Faults faults{.timeOfDay = shift.count(), .monotonic = shift.count()};
        m_faults.seek(0);
        m_faults.write(reinterpret_cast<const char*>(&faults), sizeof(faults));
    }
    QProcess shell;
    shell.start(u"sh"_s, {u"-c"_s, u"kill -STOP $PPID; sleep 0.2; kill -CONT $PPID"_s});
    shell.waitForFinished();
}
