#include "bench/program/ProgramRun.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcessEnvironment>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace
{

constexpr int Patience = 60'000; // milliseconds

QByteArray procFile(qint64 id, const char* name)
{
    QFile file(u"/proc/%1/%2"_s.arg(id).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QProcessEnvironment environmentFor(const QString& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home);
    for (const char* variable : {"XDG_STATE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                                 "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
        environment.insert(QLatin1String(variable), home);
    environment.insert(u"VORN_PORTALHUB_SOCKET"_s, home + u"/portalhub"_s);
    environment.insert(u"VORN_SYSFS_ROOT"_s, home + u"/sys"_s);
    environment.insert(u"QT_LOGGING_RULES"_s, u"qt.scenegraph.time.renderloop.debug=true"_s);
    return environment;
}

} // namespace

ProgramRun::ProgramRun(const QString& program, const QString& home)
{
    m_process.setProcessEnvironment(environmentFor(home));
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    QElapsedTimer timer;
    timer.start();
    m_process.start(program, QStringList());
    // A frame with a time of 0 ms was rendered before the window was on the screen.
    static const QRegularExpression s_frame(u"rendered (with .* )?in (?!0ms)"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    QString output;
    while (!output.contains(s_frame) && m_process.waitForReadyRead(Patience))
        output += QString::fromLocal8Bit(m_process.readAll());
    m_firstFrame = double(timer.nsecsElapsed()) / 1e6;
    QObject::connect(&m_process, &QProcess::readyRead, &m_process, [this] { m_process.readAll(); });
}

ProgramRun::~ProgramRun()
{
    if (!quit())
        m_process.kill();
}

bool ProgramRun::quit()
{
    m_process.terminate();
    return m_process.state() == QProcess::NotRunning || m_process.waitForFinished(Patience);
}

QStringList ProgramRun::threads() const
{
    return QDir(u"/proc/%1/task"_s.arg(pid())).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

double ProgramRun::waits() const
{
    constexpr QByteArrayView Field = "\nvoluntary_ctxt_switches:";
    double count = 0;
    for (const QString& thread : threads()) {
        const QByteArray status = procFile(thread.toLongLong(), "status");
        const qsizetype at = status.indexOf(Field);
        if (at >= 0)
            count += status.mid(at + Field.size()).split('\n').first().trimmed().toDouble();
    }
    return count;
}
