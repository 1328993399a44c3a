#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QTest>

/// For expectations that differ between the systems.
#ifdef Q_OS_WIN
inline constexpr bool IsWindows = true;
#else
inline constexpr bool IsWindows = false;
#endif

/// A test helper program in its own process. It answers each command with a line.
class HelperProcess : public QProcess
{
public:
    static QString path(const QString& program)
    {
        return QCoreApplication::applicationDirPath() + QLatin1Char('/') + program +
               QLatin1String(IsWindows ? ".exe" : "");
    }

    ~HelperProcess() override
    {
        closeWriteChannel(); // the helper ends at the end of its input
        if (state() != NotRunning && !waitForFinished(5'000))
            kill();
    }

    /// Starts the program and waits for its line "ready".
    bool startAndWait(const QString& program, const QStringList& arguments)
    {
        start(program, arguments);
        return waitForStarted() && nextLine() == "ready";
    }

    /// Sends a command and waits for its line "ok".
    bool command(const QByteArray& line)
    {
        write(line + '\n');
        return nextLine() == "ok";
    }

    QByteArray nextLine()
    {
        while (!canReadLine() && waitForReadyRead(20'000)) {
        }
        return readLine().trimmed();
    }

    /// Kills the process and waits for its end.
    bool killAndWait()
    {
        kill();
        return waitForFinished();
    }
};

/// A name that no other process uses.
inline QString uniqueName(const QString& prefix)
{
    static int s_count = 0;
    return prefix + QString::number(QCoreApplication::applicationPid()) + QLatin1Char('n') +
           QString::number(++s_count);
}
