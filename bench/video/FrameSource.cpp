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
    : m_writer(QCoreApplication::applicationDirPath() + "/frame_writer"_L1,
               {mappingName, eventName})
{
    m_writer.readLine(); // the program is ready
    for (const QByteArray& command :
         {"mapping " + QByteArray::number(qulonglong(framelayout::MappingSize)) + '\n',
          "event\n"_ba}) {
        m_writer.write(command);
        if (m_writer.readLine() != "ok")
            qFatal("the writing process did not make its objects");
    }
}

void FrameSource::write(int count, std::chrono::microseconds interval)
{
    m_writer.write("stamped " + QByteArray::number(count) + ' ' +
                   QByteArray::number(qint64(interval.count())) + '\n');
}
