#pragma once

#include "framewriter/FrameLayout.h"
#include "framewriter/FrameObjects.h"
#include "framewriter/FrameWriter.h"
#include "simulator/display/CameraHead.h"
#include "simulator/script/Feature.h"
#include "simulator/script/MessageMemory.h"
#include "simulator/video/SetupFlow.h"
#include "simulator/video/SetupPicture.h"

#include <QTimer>
#include <QUdpSocket>

#include <optional>

namespace simulator
{

class EventLog;

/// The display's screen: writes the set-up screen as frames into the shared memory, receives the
/// pointer events of the program, and simulates a writer that fails. Needs a QGuiApplication once
/// it is started.
class VideoFeature : public Feature
{
    Q_OBJECT

public:
    /// Names of the shared objects. Tests use names of their own.
    struct Names {
        QString mapping = QString::fromLatin1(framelayout::MappingName);
        QString event = QString::fromLatin1(framelayout::EventName);
        quint16 pointerPort = 49176;
    };

    explicit VideoFeature(EventLog& log, QObject* parent = nullptr);
    /// @p log must outlive the feature.
    VideoFeature(EventLog& log, Names names, QObject* parent = nullptr);

    QString name() const override;
    void addCommands(CommandInterpreter& interpreter) override;
    QJsonObject status() const override;

    /// Drops the stored pointer events, so that later expectations look only at new ones.
    void forget() { m_pointerEvents.forget(); }
    /// The view of the display's camera; nothing while the camera is off.
    void setCamera(const std::optional<CameraView>& view) { m_camera = view; }
    quint16 pointerPort() const { return m_pointer.localPort(); }

signals:
    /// The last step of the set-up was completed.
    void setupFinished();

private:
    enum class State { Stopped, Writing, Stalled, CutShort, Dead };

    void addWriterCommands(CommandInterpreter& interpreter);
    void addFaultCommands(CommandInterpreter& interpreter);
    void addExpectations(CommandInterpreter& interpreter);

    QString start();
    void stop();
    QString makeObjects();
    QString bindPointerPort();
    QString setSize(int width, int height);
    void setRate(int framesPerSecond);
    QString stall();
    QString resume();
    QString die();
    QString comeBack();
    QString cutShort();
    void setHostile(FrameWriter::Fault fault, int frames);
    void setState(State state);

    void writeFrame();
    void takeDatagrams();
    void takePointer(const PointerEvent& event);
    void reportStep();

    EventLog& m_log;
    const Names m_names;
    State m_state = State::Stopped;
    QSize m_size{1920, 1080};
    int m_rate = 30;
    quint32 m_frameNumber = 0;
    FrameWriter::Fault m_fault{};
    int m_hostileFrames = 0;
    SetupFlow m_flow;
    std::optional<CameraView> m_camera;
    std::optional<SetupPicture> m_picture;
    std::unique_ptr<FrameObjects> m_objects;
    std::optional<FrameWriter> m_writer;
    QTimer m_timer;
    QUdpSocket m_pointer;
    MessageMemory m_pointerEvents{QStringLiteral("pointer event")};
};

} // namespace simulator
