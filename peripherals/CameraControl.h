#pragma once

#include "device/CameraReports.h"

#include <QObject>

#include <atomic>
#include <mutex>
#include <set>

class MessageChannel;

/// Steers the display's camera for the user interface: movement and zoom while a button is held,
/// presets, automatic framing. Every command is one message to the display; lost messages are not
/// repeated.
///
/// The user interface calls on the main thread, the display's reports arrive on the channel
/// library's thread. Signals are emitted on the thread of the change.
///
/// A movement that is held when the object is destroyed is released, or the camera would go on.
class CameraControl : public QObject, public CameraReports
{
    Q_OBJECT
    Q_PROPERTY(
        bool autoFraming READ autoFraming WRITE setAutoFraming NOTIFY autoFramingChanged FINAL)
    Q_PROPERTY(
        bool smartFraming READ smartFraming WRITE setSmartFraming NOTIFY smartFramingChanged FINAL)

public:
    enum ManualDirection {
        Manual_ZoomIn = 0,
        Manual_ZoomOut = 1,
        Manual_Up = 2,
        Manual_Down = 3,
        Manual_Left = 4,
        Manual_Right = 5,
    };
    Q_ENUM(ManualDirection)

    enum ButtonStatus { Btn_Down = 0, Btn_Up = 1 };
    Q_ENUM(ButtonStatus)

    enum PresetAction { Preset_Apply = 0, Preset_Save = 1 };
    Q_ENUM(PresetAction)

    enum PresetNumber { Preset_P1 = 0, Preset_P2 = 1, Preset_P3 = 2 };
    Q_ENUM(PresetNumber)

    /// The channel has to outlive this object.
    explicit CameraControl(MessageChannel& channel, QObject* parent = nullptr);
    ~CameraControl() override;

    bool autoFraming() const { return m_autoFraming; }
    bool smartFraming() const { return m_smartFraming; }

    /// The camera moves from Btn_Down until Btn_Up.
    /// @param Key        a ManualDirection
    /// @param BtnStatus  a ButtonStatus
    Q_INVOKABLE void scale(int Key, int BtnStatus);
    /// Ends all movements whose button is still pressed, by sending Btn_Up. Any thread.
    void releaseMovements();
    /// @param PresetNum     a PresetNumber
    /// @param PresetStatus  a PresetAction
    Q_INVOKABLE void preset(int PresetNum, int PresetStatus);
    /// Queries both framings and the use of the camera. The answers arrive through the setters.
    Q_INVOKABLE void requestStatus();

    /// @param direction  0: set by the user and sent to the display; otherwise reported by the
    ///                   display
    Q_INVOKABLE void setAutoFraming(bool newAutoFraming, int direction = 0)
    {
        setAutoFraming(newAutoFraming, static_cast<Direction>(direction));
    }
    Q_INVOKABLE void setSmartFraming(bool newSmartFraming, int direction = 0)
    {
        setSmartFraming(newSmartFraming, static_cast<Direction>(direction));
    }
    void setAutoFraming(bool newAutoFraming, Direction direction) override;
    void setSmartFraming(bool newSmartFraming, Direction direction) override;
    void setCameraSwitch(int sw) override;

signals:
    /// @param sw  0: the display's camera is off; otherwise it is in use
    void cameraSwitch(int sw);
    void autoFramingChanged();
    void smartFramingChanged();

private:
    MessageChannel& m_channel;
    // Any thread. Compared and stored in one atomic step, so that no lock is held while signals are
    // emitted and messages are sent.
    std::atomic<bool> m_autoFraming{false};
    std::atomic<bool> m_smartFraming{false};
    std::mutex m_mutex;
    std::set<int> m_held; // keys without Btn_Up so far; guarded by m_mutex
};
