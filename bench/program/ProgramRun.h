#pragma once

#include <QProcess>
#include <QString>

/// Runs a program on the screen with @p home as its home folder and waits for its first frame. The
/// destructor ends the program.
class ProgramRun
{
public:
    ProgramRun(const QString& program, const QString& home);
    ~ProgramRun();
    Q_DISABLE_COPY_MOVE(ProgramRun)

    double firstFrameMilliseconds() const { return m_firstFrame; }
    qint64 pid() const { return m_process.processId(); }
    double residentMegabytes() const;
    /// How often any thread has waited for something so far. Linux only.
    double waits() const;
    /// Ends the program as the tray's "Quit" does. False if it is still running after a minute.
    bool quit();

private:
    QStringList threads() const;

    QProcess m_process;
    double m_firstFrame = 0;
};
