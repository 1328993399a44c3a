#include "bench/video/FrameSource.h"

#include "framewriter/FrameLayout.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

qint64 now()
{
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}

FrameSource::FrameSource(const QString& mappingName, const QString& eventName)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationDirPath() + "/frame_writer"_L1,
                    {mappingName, eventName});
    m_process.write("mapping " + QByteArray::number(qulonglong(framelayout::MappingSize)) +
                    "\nevent\n");
    QByteArray answers;
    while (answers.count('\n') < 3 && m_process.waitForReadyRead())
        answers += m_process.readAll();
    if (answers.count("ok") != 2)
        qFatal("the writing process did not make its objects");
}

FrameSource::~FrameSource()
{
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished())
        m_process.kill();
}

void FrameSource::write(int count, std::chrono::microseconds interval)
{
    m_process.write("stamped " + QByteArray::number(count) + ' ' +
                    QByteArray::number(qint64(interval.count())) + '\n');
    m_process.waitForBytesWritten();
}
