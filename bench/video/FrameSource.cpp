#include "bench/video/FrameSource.h"

#include "simulator/video/FrameObjects.h"
#include "simulator/video/FrameWriter.h"

#include <cstring>
#include <iostream>
#include <thread>

using namespace Qt::StringLiterals;
using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

qint64 now()
{
    return std::chrono::duration_cast<microseconds>(Clock::now().time_since_epoch()).count();
}

int FrameSource::run(const QString& mappingName, const QString& eventName)
{
    QString error;
    const auto objects =
        simulator::makeFrameObjects(mappingName, eventName, simulator::frame::MappingSize, error);
    if (!objects) {
        std::cerr << error.toStdString() << '\n';
        return 1;
    }
    const QByteArray picture(simulator::frame::MaximumDataSize, '\x55');
    simulator::FrameWriter(*objects).write(0, {3840, 2160}, picture);
    uchar* const data = objects->view() + simulator::frame::DataOffset;
    std::cout << "ready" << std::endl;

    int count = 0;
    qint64 interval = 0;
    while (std::cin >> count >> interval) {
        auto next = Clock::now();
        for (; count > 0; --count) {
            next += microseconds(interval);
            std::this_thread::sleep_until(next);
            std::memcpy(data, picture.constData(), std::size_t(picture.size()));
            const qint64 stamp = now();
            std::memcpy(data, &stamp, sizeof stamp);
            objects->post();
        }
    }
    return 0;
}

FrameSource::FrameSource(const QString& program, const QString& mappingName,
                         const QString& eventName)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program, {u"--writer"_s, mappingName, eventName});
    if (!m_process.waitForReadyRead())
        qFatal("the writing process did not start");
}

FrameSource::~FrameSource()
{
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished())
        m_process.kill();
}

void FrameSource::write(int count, std::chrono::microseconds interval)
{
    m_process.write(QByteArray::number(count) + ' ' + QByteArray::number(qint64(interval.count())) +
                    '\n');
    m_process.waitForBytesWritten();
}
