#pragma once

#include "device/DealChannelMsg.h"
#include "device/DisplayReports.h"
#include "device/LocalDevices.h"
#include "device/MessageChannel.h"
#include "device/NV12VideoSource.h"
#include "device/UdpClient.h"
#include "launch/UpgradeControl.h"
#include "persistence/TaskQueue.h"
#include "threads/Worker.h"

#include <QJsonObject>
#include <QObject>
#include <QThread>
#include <QTimer>
#include <QVariant>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>

class FileInfo;
class UserSettings;
class VideoReceiver;
class WindowRequests;

/// The one object through which the user interface sees and drives the display.
///
/// It holds device, version and account state as properties, owns the task queue and its thread,
/// the video source, the UDP client and the local device check, and runs three workers: program
/// status, video and UDP. Made and destroyed on the main thread, which also calls the invokable
/// operations; the setters but setUseRemoteDevice() may be called from any thread. Values are kept
/// under a lock, while signals are emitted and messages sent outside it, so that neither a binding
/// that reads nor a channel library that calls back can block. The one exception is the task that
/// writes disable_local_dev, which is posted under a lock of its own to keep its order. Signals of
/// other threads reach the main thread queued.
class DeviceControl : public QObject, public DisplayReports, public LocalDeviceStatus
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
    /// What the object works with. References have to outlive it. The functions give objects that
    /// do not exist yet while it is constructed; they are called on the threads named.
    struct Services {
        const FileInfo& config;
        TaskQueue::Actions tasks;
        MessageChannel& channel;
        WindowRequests& windows;
        ProgramControl& programs;
        /// The registry value "version" or "newver", empty when absent. Status worker and main
        /// thread.
        std::function<QString(const QString& name)> versionValue;
        /// Main thread; first called during construction.
        std::function<UserSettings&()> userSettings;
        /// Channel thread; first called with the first message.
        std::function<CameraReports&()> camera;
        std::unique_ptr<LocalDevices> localDevices;
        QString rulesPath;
        /// File path of this program, handed to the updater.
        QString executablePath;
    };
    struct Timing {
        std::chrono::milliseconds statusPass = std::chrono::seconds(1);
        std::chrono::milliseconds pauseAfterUpdaterKill = std::chrono::seconds(3);
    };

    explicit DeviceControl(Services services);
    DeviceControl(Services services, Timing timing);
    ~DeviceControl() override;

    /// Ends all threads of this object, which does nothing by itself after that. Any thread but
    /// those.
    void endThreads();

    /// The program's object, from the end of its construction to its destruction. Only the
    /// composition of the program uses this.
    static DeviceControl& instance();
    /// Handles one message of the channel and sends the reply it asks for. Always 0.
    static int DealChannelMsg(int id, const std::string& msg);
    int handleChannelMessage(int id, const std::string& msg);

    Q_INVOKABLE int connectMode() const;
    Q_INVOKABLE int volume() const;
    /// @param direction  here and below 0: changed in this program, 1: reported by the display
    Q_INVOKABLE void setVolume(int newVolume, int direction = 0) override;
    Q_INVOKABLE int byodSwitch() const;
    Q_INVOKABLE void setByodSwitch(int newByodSwitch, int direction = 0) override;
    Q_INVOKABLE int zoomSwitch() const;
    Q_INVOKABLE void setZoomSwitch(int newZoomSwitch, int direction = 0) override;
    Q_INVOKABLE QString version() const;
    Q_INVOKABLE QString newVersion() const;
    Q_INVOKABLE QString k4vLowestVer() const;
    Q_INVOKABLE bool useRemoteDevice() const;
    /// Main thread.
    Q_INVOKABLE void setUseRemoteDevice(bool checked, int direction = 0);
    /// Whether the registry names a version other than the installed one.
    Q_INVOKABLE bool checkUpdate(int direction = 0);
    Q_INVOKABLE void startUpdate();
    Q_INVOKABLE void updateTimeout();
    Q_INVOKABLE int vornMicStatus() const;
    Q_INVOKABLE int vornCamStatus() const;
    Q_INVOKABLE int vornSpkStatus() const;
    Q_INVOKABLE void launchZoom();
    Q_INVOKABLE void launchTeams();
    Q_INVOKABLE void launchGoogleMeeting();
    Q_INVOKABLE void startBYOD();
    Q_INVOKABLE void loginSuccess(const QJsonObject& root);
    Q_INVOKABLE void profileUpdateSuccess(const QJsonObject& root);
    Q_INVOKABLE void profileRequestSuccess(const QJsonObject& root);
    Q_INVOKABLE void setLogin(bool newLogin);
    Q_INVOKABLE void setVideoSink(const QVariant& sinkVariant);
    /// Whether the monitor window wants frames.
    Q_INVOKABLE void monitorPlay(bool play);
    /// @param type  0 press, 1 release, 2 move
    /// @param x     fraction 0 to 1 of the picture's width, y likewise of its height
    Q_INVOKABLE void getMouseEvent(int type, float x, float y);
    Q_INVOKABLE void getKeyboardEvent(int type, int key);
    Q_INVOKABLE int frameIndex() const;
    Q_INVOKABLE void startSetupBarOOBE();

    Q_INVOKABLE QString remoteVer() const;
    Q_INVOKABLE bool supportLaunchZoom() const;
    Q_INVOKABLE bool supportLaunchTeams() const;
    Q_INVOKABLE bool supportLaunchGoogle() const;
    Q_INVOKABLE bool login() const;
    Q_INVOKABLE QString firstName() const;
    Q_INVOKABLE QString lastName() const;
    Q_INVOKABLE QString email() const;
    Q_INVOKABLE QString company() const;
    Q_INVOKABLE QString title() const;
    Q_INVOKABLE QString token() const;
    Q_INVOKABLE QString userImage() const;
    Q_INVOKABLE QString userId() const;
    /// The avatar as Base64 text without prefix, empty when there is none.
    QString rawPicture() const;

    void setConnectMode(int mode) override;
    void setVersion(const QString& newVersion);
    void setNewVersion(const QString& newVersion);
    void setK4vLowestVer(const QString& newK4vLowestVer);
    void setRemoteVer(const QString& newRemoteVer) override;
    void setVornMicStatus(int newVornMicStatus) override;
    void setVornCamStatus(int newVornCamStatus) override;
    void setVornSpkStatus(int newVornSpkStatus) override;
    void setSupportLaunchZoom(bool newSupportLaunchZoom);
    void setSupportLaunchTeams(bool newSupportLaunchTeams);
    void setSupportLaunchGoogle(bool newSupportLaunchGoogle);
    void setFirstName(const QString& newFirstName);
    void setLastName(const QString& newLastName);
    void setEmail(const QString& newEmail);
    void setCompany(const QString& newCompany);
    void setTitle(const QString& newTitle);
    void setToken(const QString& newToken);
    void setUserId(const QString& newUserId);
    void setFrameIndex(int newFrameIndex);
    void setVolumeReady(int ready) override;
    void setShareStatusReady(int ready) override;
    void setRemoteVerReady(int ready) override;
    /// Writes "disable_local_dev" and starts the interval within which it is not written again.
    /// @param force  write also when the value equals the one written last
    void applyUseRemoteDevice(bool force);

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
    static constexpr quint16 ReceivePort = 49175;

    /// What a setter's log line says besides the values.
    struct ChangeLabels {
        const char* function;
        const char* oldValue;
        const char* newValue;
    };

    template <typename Value>
    Value stored(const Value& member) const;
    template <typename Value>
    bool change(Value& member, const Value& newValue, const ChangeLabels& labels);
    template <typename Value>
    bool change(Value& member, const Value& newValue, int direction, const ChangeLabels& labels);

    void readConfig();
    void restoreAccount();
    void startWorkers();

    void DetectProgramStatusProc(const std::stop_token& stop);
    void RecvSharedMemoryProc(const std::stop_token& stop);
    void RecvUdpDatagram(const std::stop_token& stop);

    void loadVersion();
    void loadNewVersion();
    /// True when there is a newer version.
    bool reportVersions(const char* function);
    void queryFirmwareVersion();

    void requestWindow(int mode);
    void forgetDisplay();
    void saveDisableLocalDevices();
    void saveConfigValue(const QString& key, bool value);
    void saveUserValue(const QString& key, const QString& value);
    void adoptPicture(const QString& picture);
    void setUserImage(const QString& newUserImage);
    void adoptProfile(const QJsonObject& profile);
    void clearAccount();

    Services m_services;
    const Timing m_timing;

    mutable std::mutex m_stateMutex;
    // Keeps the registry writes in the order of the states they are made of. Recursive, since a
    // slot that is connected directly to addTask may set something.
    std::recursive_mutex m_saveOrderMutex;

    int m_connectMode = 0;
    int m_volume = 75;
    int m_byodSwitch = 0;
    int m_zoomSwitch = 0;
    QString m_version;
    QString m_new_version;
    QString m_remoteVer;
    QString m_k4vLowestVer;
    bool m_useRemoteDevice = true;
    bool m_useRemoteDeviceLast = true;
    QTimer m_applyTimer;
    int m_volume_ready = 0;
    int m_share_status_ready = 0;
    int m_remotever_ready = 0;
    UpgradeControl m_upgrade;
    TaskQueue m_taskQueue;
    QThread m_taskThread;
    std::atomic<bool> m_taskThreadEnded = false;
    int m_vornMicStatus = 0;
    int m_vornCamStatus = 0;
    int m_vornSpkStatus = 0;
    bool m_supportLaunchZoom = true;
    bool m_supportLaunchTeams = true;
    bool m_supportLaunchGoogle = true;
    bool m_login = false;
    QString m_firstName;
    QString m_lastName;
    QString m_email;
    QString m_company;
    QString m_title;
    QString m_token;
    QString m_userImage;
    QString m_userId;
    QString m_rawPicture;
    bool m_monitor_play = false;
    NV12VideoSource m_videoSource;
    std::unique_ptr<VideoReceiver> m_videoReceiver;
    int m_frameIndex = 0;
    UdpClient m_udpClient;

    // Status worker only.
    int m_versionQueryTick = 0;

    // Last, so that the workers have ended before anything they use goes.
    std::unique_ptr<Worker> m_statusWorker;
    std::unique_ptr<Worker> m_videoWorker;
    std::unique_ptr<Worker> m_udpWorker;
};
