#pragma once

#include "device/ChannelReceiver.h"
#include "device/DisplayState.h"
#include "device/PointerLink.h"
#include "device/RemoteDeviceSwitch.h"
#include "device/ScreenMirror.h"
#include "device/StatusLoop.h"
#include "device/TaskThread.h"
#include "device/UserProfile.h"

#include <QVariant>

#include <optional>

/// The object through which the user interface sees and drives the display: the properties, signals
/// and operations of its parts under one name. Made, started, used and destroyed on the main
/// thread. Setters of the display's state, the versions and the frame index may be called from any
/// thread; their signals are emitted on it and reach QML queued.
class DeviceControl : public QObject
{
    Q_OBJECT
    Q_PROPERTY(
        int connectMode READ connectMode WRITE setConnectMode NOTIFY connectModeChanged FINAL)
    Q_PROPERTY(int volume READ volume WRITE setVolume NOTIFY volumeChanged FINAL)
    Q_PROPERTY(int byodSwitch READ byodSwitch WRITE setByodSwitch NOTIFY byodSwitchChanged FINAL)
    Q_PROPERTY(int zoomSwitch READ zoomSwitch WRITE setZoomSwitch NOTIFY zoomSwitchChanged FINAL)
    Q_PROPERTY(QString version READ version NOTIFY versionChanged FINAL)
    Q_PROPERTY(QString newVersion READ newVersion NOTIFY newVersionChanged FINAL)
    Q_PROPERTY(QString k4vLowestVer READ k4vLowestVer NOTIFY k4vLowestVerChanged FINAL)
    Q_PROPERTY(QString remoteVer READ remoteVer NOTIFY remoteVerChanged FINAL)
    Q_PROPERTY(bool useRemoteDevice READ useRemoteDevice WRITE setUseRemoteDevice NOTIFY
                   useRemoteDeviceChecked FINAL)
    Q_PROPERTY(int vornMicStatus READ vornMicStatus WRITE setVornMicStatus NOTIFY
                   vornMicStatusChanged FINAL)
    Q_PROPERTY(int vornCamStatus READ vornCamStatus WRITE setVornCamStatus NOTIFY
                   vornCamStatusChanged FINAL)
    Q_PROPERTY(int vornSpkStatus READ vornSpkStatus WRITE setVornSpkStatus NOTIFY
                   vornSpkStatusChanged FINAL)
    Q_PROPERTY(bool supportLaunchZoom READ supportLaunchZoom WRITE setSupportLaunchZoom NOTIFY
                   supportLaunchZoomChanged FINAL)
    Q_PROPERTY(bool supportLaunchTeams READ supportLaunchTeams WRITE setSupportLaunchTeams NOTIFY
                   supportLaunchTeamsChanged FINAL)
    Q_PROPERTY(bool supportLaunchGoogle READ supportLaunchGoogle WRITE setSupportLaunchGoogle NOTIFY
                   supportLaunchGoogleChanged FINAL)
    Q_PROPERTY(bool login READ login WRITE setLogin NOTIFY loginChanged FINAL)
    Q_PROPERTY(QString firstName READ firstName WRITE setFirstName NOTIFY firstNameChanged FINAL)
    Q_PROPERTY(QString lastName READ lastName WRITE setLastName NOTIFY lastNameChanged FINAL)
    Q_PROPERTY(QString email READ email WRITE setEmail NOTIFY emailChanged FINAL)
    Q_PROPERTY(QString company READ company WRITE setCompany NOTIFY companyChanged FINAL)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged FINAL)
    Q_PROPERTY(QString token READ token WRITE setToken NOTIFY tokenChanged FINAL)
    Q_PROPERTY(QString userImage READ userImage NOTIFY userImageChanged FINAL)
    Q_PROPERTY(QString userId READ userId WRITE setUserId NOTIFY userIdChanged FINAL)
    Q_PROPERTY(int frameIndex READ frameIndex WRITE setFrameIndex NOTIFY frameIndexChanged FINAL)

public:
    /// What the object works with. References have to outlive it.
    struct Services {
        const FileInfo& config;
        UserProfile& profile;
        MessageChannel& channel;
        WindowRequests& windows;
        ProgramControl& programs;
        std::function<QString(const QString& name)> registryValue; ///< as for StatusLoop
        std::unique_ptr<LocalDevices> localDevices;
        QString rulesPath;
        QString executablePath; ///< of this program, passed to the updater
    };
    using Timing = StatusLoop::Timing;

    /// Adopts the configuration and reads the rules of the device check; starts no thread.
    explicit DeviceControl(Services services, Timing timing = {});
    ~DeviceControl() override;

    /// Restores the signed-in user and starts the threads. Once.
    void start(TaskQueue::Actions tasks, UserSettings& userSettings, CameraReports& camera);
    /// Ends the companion program and all threads of this object, which is passive from then on.
    /// The registry value is reset and waiting settings are written before. Any thread but those.
    void endThreads();

    /// The program's object. Serves the channel library's callback only.
    static DeviceControl& instance();
    /// Handles one message of the channel and sends the reply it asks for. Always 0. Any thread,
    /// after start().
    static int DealChannelMsg(int id, const std::string& msg);
    int handleChannelMessage(int id, const std::string& msg);

    // For all setters with a direction: 0 = changed by this program, 1 = reported by the display.
    Q_INVOKABLE int connectMode() const { return int(m_shownMode.load()); }
    Q_INVOKABLE int volume() const { return m_display.volume(); }
    Q_INVOKABLE void setVolume(int newVolume, int direction = 0);
    Q_INVOKABLE int byodSwitch() const { return int(m_display.byodSwitch()); }
    Q_INVOKABLE void setByodSwitch(int newByodSwitch, int direction = 0);
    Q_INVOKABLE int zoomSwitch() const { return int(m_display.zoomSwitch()); }
    Q_INVOKABLE void setZoomSwitch(int newZoomSwitch, int direction = 0);
    Q_INVOKABLE QString version() const { return m_status.version(); }
    Q_INVOKABLE QString newVersion() const { return m_status.newVersion(); }
    Q_INVOKABLE QString k4vLowestVer() const { return m_display.k4vLowestVer(); }
    Q_INVOKABLE bool useRemoteDevice() const { return m_remoteDevice.useRemoteDevice(); }
    /// Main thread.
    Q_INVOKABLE void setUseRemoteDevice(bool checked, int direction = 0);
    /// Whether the registry names a version other than the installed one.
    Q_INVOKABLE bool checkUpdate(int = 0) { return m_status.checkUpdate(); }
    Q_INVOKABLE void startUpdate() { m_status.startUpdate(); }
    Q_INVOKABLE void updateTimeout() { m_status.updateTimeout(); }
    Q_INVOKABLE int vornMicStatus() const { return m_display.vornMicStatus(); }
    Q_INVOKABLE int vornCamStatus() const { return m_display.vornCamStatus(); }
    Q_INVOKABLE int vornSpkStatus() const { return m_display.vornSpkStatus(); }
    Q_INVOKABLE void launchZoom();
    Q_INVOKABLE void launchTeams();
    Q_INVOKABLE void launchGoogleMeeting();
    Q_INVOKABLE void startBYOD() { m_display.startByod(); }
    Q_INVOKABLE void loginSuccess(const QJsonObject& root) { m_profile.loginSuccess(root); }
    Q_INVOKABLE void profileUpdateSuccess(const QJsonObject& r) { m_profile.updateSuccess(r); }
    Q_INVOKABLE void profileRequestSuccess(const QJsonObject& r) { m_profile.requestSuccess(r); }
    Q_INVOKABLE void setLogin(bool newLogin) { m_profile.setLogin(newLogin); }
    Q_INVOKABLE void setVideoSink(const QVariant& sinkVariant);
    /// Whether the monitor window wants frames. Main thread.
    Q_INVOKABLE void monitorPlay(bool play);
    /// @param type  0 press, 1 release, 2 move
    /// @param x     fraction 0 to 1 of the picture's width, y likewise of its height
    Q_INVOKABLE void getMouseEvent(int type, float x, float y) { m_pointer.send(type, x, y); }
    Q_INVOKABLE void getKeyboardEvent(int type, int key);
    Q_INVOKABLE int frameIndex() const { return m_screen.frameIndex(); }
    Q_INVOKABLE void startSetupBarOOBE() { m_display.startSetup(); }

    Q_INVOKABLE QString remoteVer() const { return m_display.remoteVer(); }
    Q_INVOKABLE bool supportLaunchZoom() const { return m_supportLaunchZoom.get(); }
    Q_INVOKABLE bool supportLaunchTeams() const { return m_supportLaunchTeams.get(); }
    Q_INVOKABLE bool supportLaunchGoogle() const { return m_supportLaunchGoogle.get(); }
    Q_INVOKABLE bool login() const { return m_profile.login(); }
    Q_INVOKABLE QString firstName() const { return m_profile.firstName(); }
    Q_INVOKABLE QString lastName() const { return m_profile.lastName(); }
    Q_INVOKABLE QString email() const { return m_profile.email(); }
    Q_INVOKABLE QString company() const { return m_profile.company(); }
    Q_INVOKABLE QString title() const { return m_profile.title(); }
    Q_INVOKABLE QString token() const { return m_profile.token(); }
    Q_INVOKABLE QString userImage() const { return m_profile.userImage(); }
    Q_INVOKABLE QString userId() const { return m_profile.userId(); }

    void setConnectMode(int mode) { m_display.setConnectMode(ConnectMode(mode)); }
    void setVersion(const QString& version) { m_status.setVersion(version); }
    void setNewVersion(const QString& version) { m_status.setNewVersion(version); }
    void setK4vLowestVer(const QString& version) { m_display.setK4vLowestVer(version); }
    void setRemoteVer(const QString& version) { m_display.setRemoteVer(version); }
    void setVornMicStatus(int status) { m_display.setVornMicStatus(status); }
    void setVornCamStatus(int status) { m_display.setVornCamStatus(status); }
    void setVornSpkStatus(int status) { m_display.setVornSpkStatus(status); }
    void setSupportLaunchZoom(bool shown);
    void setSupportLaunchTeams(bool shown);
    void setSupportLaunchGoogle(bool shown);
    void setFirstName(const QString& name) { m_profile.setFirstName(name); }
    void setLastName(const QString& name) { m_profile.setLastName(name); }
    void setEmail(const QString& email) { m_profile.setEmail(email); }
    void setCompany(const QString& company) { m_profile.setCompany(company); }
    void setTitle(const QString& title) { m_profile.setTitle(title); }
    void setToken(const QString& token) { m_profile.setToken(token); }
    void setUserId(const QString& userId) { m_profile.setUserId(userId); }
    void setFrameIndex(int newFrameIndex) { m_screen.setFrameIndex(newFrameIndex); }
    void setVolumeReady(int ready) { m_display.setVolumeReady(ready); }
    void setShareStatusReady(int ready) { m_display.setShareStatusReady(ready); }
    void setRemoteVerReady(int ready) { m_display.setRemoteVerReady(ready); }
    /// As for RemoteDeviceSwitch. Main thread.
    void applyUseRemoteDevice(bool force) { m_remoteDevice.applyUseRemoteDevice(force); }

signals:
    void connectModeChanged();
    void volumeReady();
    void volumeChanged();
    void byodSwitchChanged();
    void zoomSwitchChanged();
    void versionChanged();
    void newVersionChanged();
    void k4vLowestVerChanged();
    void remoteVerChanged();
    void useRemoteDeviceChecked();
    void hasNewVersion(bool checked);
    void updateCompleted();
    void showCheckRemoteVersion(bool show);
    void addTask(QString task, QVariantList args);
    void vornMicStatusChanged();
    void vornCamStatusChanged();
    void vornSpkStatusChanged();
    void supportLaunchZoomChanged();
    void supportLaunchTeamsChanged();
    void supportLaunchGoogleChanged();
    void loginChanged();
    void firstNameChanged();
    void lastNameChanged();
    void emailChanged();
    void companyChanged();
    void titleChanged();
    void tokenChanged();
    void userImageChanged();
    void userIdChanged();
    void frameIndexChanged();

private:
    template <typename Part, typename... Args>
    void forward(const Part& part, void (Part::*from)(Args...), void (DeviceControl::*to)(Args...));
    void forwardSignals();
    void showConnectMode();
    void adoptConfig(const FileInfo& config);
    void saveConfigValue(QLatin1StringView key, bool value);

    MessageChannel& m_channel;
    ProgramControl& m_programs;
    const QString m_configPath;

    /// The connection mode as the pages see it: every change in order, on the main thread.
    std::atomic<ConnectMode> m_shownMode = ConnectMode::None;
    std::atomic<bool> m_isCompanionEnded = false;

    // Main thread only.
    LoggedValue<bool> m_supportLaunchZoom;
    LoggedValue<bool> m_supportLaunchTeams;
    LoggedValue<bool> m_supportLaunchGoogle;

    // The parts say for themselves which threads they serve. In the order in which they use each
    // other; the log of start and end follows it.
    UserProfile& m_profile;
    DisplayState m_display;
    RemoteDeviceSwitch m_remoteDevice;
    StatusLoop m_status;
    TaskThread m_tasks;
    ScreenMirror m_screen;
    PointerLink m_pointer;
    std::optional<ChannelReceiver> m_receiver; // from start() on
};
