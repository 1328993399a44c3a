#pragma once

#include "device/DisplayReports.h"
#include "device/LocalDevices.h"
#include "device/LoggedValue.h"

#include <QObject>

#include <deque>

class MessageChannel;
class WindowRequests;

/// The state of the display as it reports it, and the changes that the user makes to it.
///
/// Any thread. Signals are emitted on the thread of the change and, like messages to the display,
/// without a lock held: a slot may read, and the channel library may call back from within a send.
class DisplayState : public QObject, public DisplayReports, public LocalDeviceStatus
{
    Q_OBJECT

public:
    /// Both have to outlive this object.
    DisplayState(MessageChannel& channel, WindowRequests& windows);

    ConnectMode connectMode() const { return m_connectMode.get(); }
    /// The oldest change of the mode that was not taken yet.
    std::optional<ConnectMode> takeConnectMode();
    int volume() const { return m_volume.get(); }
    SourceState byodSwitch() const { return m_byodSwitch.get(); }
    SourceState zoomSwitch() const { return m_zoomSwitch.get(); }
    QString remoteVer() const { return m_remoteVer.get(); }
    QString k4vLowestVer() const { return m_k4vLowestVer.get(); }
    int vornMicStatus() const { return m_vornMicStatus.get(); }
    int vornCamStatus() const { return m_vornCamStatus.get(); }
    int vornSpkStatus() const { return m_vornSpkStatus.get(); }

    /// A display that connects brings the main window forward; without a display its state is
    /// reset.
    void setConnectMode(ConnectMode mode) override;
    void setVolume(int newVolume, Direction direction) override;
    void setByodSwitch(SourceState newByodSwitch, Direction direction) override;
    void setZoomSwitch(SourceState newZoomSwitch, Direction direction) override;
    void setRemoteVer(const QString& newRemoteVer) override;
    void setK4vLowestVer(const QString& newK4vLowestVer);
    void setVornMicStatus(int newVornMicStatus) override;
    void setVornCamStatus(int newVornCamStatus) override;
    void setVornSpkStatus(int newVornSpkStatus) override;
    void setVolumeReady(int ready) override;
    void setShareStatusReady(int ready) override;
    void setRemoteVerReady(int ready) override;

    /// Starts the display's screen sharing.
    void startByod();
    /// Starts the display's first-run set-up.
    void startSetup();

signals:
    void connectModeChanged();
    void volumeReady();
    void volumeChanged();
    void byodSwitchChanged();
    /// Emitted last, after byodSwitchChanged() and the message to the display.
    void byodSwitchApplied();
    void zoomSwitchChanged();
    void remoteVerChanged();
    void k4vLowestVerChanged();
    void vornMicStatusChanged();
    void vornCamStatusChanged();
    void vornSpkStatusChanged();

private:
    void requestWindow(ConnectMode mode);
    void resetDisplay();

    MessageChannel& m_channel;
    WindowRequests& m_windows;

    // Holds the changes of the mode in their order.
    std::mutex m_modesMutex;
    std::deque<ConnectMode> m_modes; // under m_modesMutex

    // Each guarded by its own mutex.
    LoggedValue<ConnectMode> m_connectMode;
    LoggedValue<int> m_volume;
    LoggedValue<SourceState> m_byodSwitch;
    LoggedValue<SourceState> m_zoomSwitch;
    LoggedValue<QString> m_remoteVer;
    LoggedValue<QString> m_k4vLowestVer;
    LoggedValue<int> m_vornMicStatus;
    LoggedValue<int> m_vornCamStatus;
    LoggedValue<int> m_vornSpkStatus;
    LoggedValue<int> m_volumeReady;
    LoggedValue<int> m_shareStatusReady;
    LoggedValue<int> m_remoteVerReady;
};
