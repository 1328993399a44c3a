#include "simulator/video/VideoFeature.h"

#include "simulator/script/EventLog.h"

#include <QJsonArray>
#include <QNetworkDatagram>

#include <array>
#include <cmath>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

// Size of the truncated memory: the header and a little of the picture.
constexpr std::size_t CutSize = 4096;
constexpr int MillisecondsPerSecond = 1000;

// Four decimals, for people who read the events.
double rounded(double fraction)
{
    constexpr double Steps = 10'000;
    return std::round(fraction * Steps) / Steps;
}

} // namespace

VideoFeature::VideoFeature(EventLog& log, QObject* parent)
    : VideoFeature(log, Names{}, parent)
{
}

VideoFeature::VideoFeature(EventLog& log, Names names, QObject* parent)
    : Feature(parent)
    , m_log(log)
    , m_names(std::move(names))
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(MillisecondsPerSecond / m_rate);
    connect(&m_timer, &QTimer::timeout, this, &VideoFeature::writeFrame);
    connect(&m_pointer, &QUdpSocket::readyRead, this, &VideoFeature::takeDatagrams);
}

QString VideoFeature::name() const
{
    return u"video"_s;
}

QJsonObject VideoFeature::status() const
{
    static const std::array s_names{u"stopped"_s, u"writing"_s, u"stalled"_s, u"cut-short"_s,
                                    u"dead"_s};
    return {{u"state"_s, s_names.at(std::size_t(m_state))},
            {u"width"_s, m_size.width()},
            {u"height"_s, m_size.height()},
            {u"rate"_s, m_rate},
            {u"frames"_s, qint64(m_frameNumber)},
            {u"step"_s, m_flow.stepName()}};
}

void VideoFeature::setState(State state)
{
    m_state = state;
    m_log.write(u"video"_s, status());
    emit changed();
}

QString VideoFeature::start()
{
    if (QString error = bindPointerPort(); !error.isEmpty())
        return error;
    if (QString error = makeObjects(); !error.isEmpty())
        return error;
    m_flow.restart();
    m_hostileFrames = 0;
    m_timer.start();
    setState(State::Writing);
    reportStep();
    return {};
}

void VideoFeature::stop()
{
    m_timer.stop();
    m_pointer.close();
    m_writer.reset();
    m_objects.reset();
    setState(State::Stopped);
}

QString VideoFeature::makeObjects()
{
    m_writer.reset();
    m_objects.reset(); // frees the names before they are used again
    m_objects = makeFrameObjects(m_names.mapping.toStdString(), m_names.event.toStdString());
    if (!m_objects->makeMemory(framelayout::MappingSize) || !m_objects->makeEvent()) {
        QString error = u"the shared memory cannot be made: "_s + qt_error_string();
        m_objects.reset();
        m_timer.stop();
        if (m_state != State::Stopped)
            setState(State::Dead); // "video return" can try again
        return error;
    }
    m_writer.emplace(*m_objects);
    return {};
}

QString VideoFeature::bindPointerPort()
{
    if (m_pointer.state() == QAbstractSocket::BoundState ||
        m_pointer.bind(QHostAddress::LocalHost, m_names.pointerPort))
        return {};
    return u"cannot listen to UDP port %1: %2"_s.arg(m_names.pointerPort)
        .arg(m_pointer.errorString());
}

QString VideoFeature::setSize(int width, int height)
{
    if (width % 2 != 0 || height % 2 != 0 ||
        qsizetype(width) * height * 3 / 2 > framelayout::MaximumDataSize)
        return u"the size must be even, and at most that of 3840 x 2160"_s;
    m_size = {width, height};
    m_picture.reset();
    setState(m_state);
    return {};
}

void VideoFeature::setRate(int framesPerSecond)
{
    m_rate = framesPerSecond;
    m_timer.setInterval(MillisecondsPerSecond / framesPerSecond);
    setState(m_state);
}

QString VideoFeature::stall()
{
    if (m_state != State::Writing)
        return u"the video is not running"_s;
    m_timer.stop();
    setState(State::Stalled);
    return {};
}

QString VideoFeature::resume()
{
    if (m_state != State::Stalled)
        return u"the video is not stalled"_s;
    m_timer.start();
    setState(State::Writing);
    return {};
}

QString VideoFeature::die()
{
    if (!m_objects)
        return u"the video is not running"_s;
    m_timer.stop();
    m_writer.reset();
    m_objects.reset();
    setState(State::Dead);
    return {};
}

QString VideoFeature::comeBack()
{
    if (m_state != State::Dead && m_state != State::CutShort)
        return u"the video has not died"_s;
    if (QString error = makeObjects(); !error.isEmpty())
        return error;
    m_timer.start();
    setState(State::Writing);
    return {};
}

QString VideoFeature::cutShort()
{
    if (!m_objects)
        return u"the video is not running"_s;
    if (!m_objects->resize(CutSize))
        return u"this system cannot truncate shared memory"_s;
    m_timer.start(); // frames are still announced
    setState(State::CutShort);
    return {};
}

void VideoFeature::setHostile(FrameWriter::Fault fault, int frames)
{
    m_fault = fault;
    m_hostileFrames = frames;
}

void VideoFeature::writeFrame()
{
    if (m_state == State::CutShort) { // writing would fault
        m_objects->post();
        return;
    }
    if (!m_picture)
        m_picture.emplace(m_size);
    const QByteArray& data = m_picture->draw(m_flow, m_camera, ++m_frameNumber);
    if (m_hostileFrames == 0) {
        m_writer->write(m_frameNumber, m_size, data);
        return;
    }
    m_writer->writeFaulty(m_fault, m_frameNumber, m_size, data);
    if (--m_hostileFrames == 0)
        m_log.write(u"hostile-frames-written"_s, {{u"frames"_s, qint64(m_frameNumber)}});
}

void VideoFeature::takeDatagrams()
{
    while (m_pointer.hasPendingDatagrams()) {
        const QByteArray bytes = m_pointer.receiveDatagram().data();
        if (const auto event = parsePointerEvent(bytes))
            takePointer(*event);
        else
            m_log.write(u"malformed-datagram"_s,
                        {{u"bytes"_s, QString::fromLatin1(bytes.toHex(' '))}});
    }
    emit changed();
}

void VideoFeature::takePointer(const PointerEvent& event)
{
    const SetupFlow::Step before = m_flow.step();
    const QString button = m_flow.take(event);
    QJsonObject fields{{u"type"_s, event.typeName()},
                       {u"x"_s, rounded(event.position.x())},
                       {u"y"_s, rounded(event.position.y())}};
    m_pointerEvents.note(0, fields);
    m_log.write(u"pointer"_s, fields);
    if (!button.isEmpty())
        m_log.write(u"button"_s,
                    {{u"name"_s, button}, {u"step"_s, SetupFlow::stepNames().at(int(before))}});
    if (m_flow.step() == before)
        return;
    reportStep();
    if (m_flow.step() == SetupFlow::Step::Done)
        emit setupFinished();
}

// The event contains the centre of each button, where a script can press it.
void VideoFeature::reportStep()
{
    QJsonArray buttons;
    const QList<SetupFlow::Button> all = m_flow.buttons();
    for (const auto& button : all)
        buttons.append(QJsonObject{{u"name"_s, button.name},
                                   {u"text"_s, button.text},
                                   {u"x"_s, rounded(button.area.center().x())},
                                   {u"y"_s, rounded(button.area.center().y())}});
    m_log.write(u"setup"_s, {{u"step"_s, m_flow.stepName()}, {u"buttons"_s, buttons}});
    emit changed();
}
