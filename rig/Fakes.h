#pragma once

#include "device/CameraReports.h"
#include "device/DeviceControl.h"
#include "device/MessageChannel.h"
#include "device/WindowRequests.h"
#include "launch/ProgramControl.h"
#include "persistence/FileInfo.h"
#include "persistence/UserSettings.h"

#include <QJsonDocument>
#include <QMap>
#include <QTemporaryDir>

#include <atomic>
#include <mutex>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

// Fakes of the interfaces that DeviceControl uses. They record the calls.

class FakeChannel : public MessageChannel
{
public:
    void push(const ChannelMessage& message) override
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_sent.push_back(message);
        }
        if (onPush)
            onPush(message);
    }

    std::vector<ChannelMessage> take()
    {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_sent, {});
    }

    /// Ids of the messages sent since the last take.
    QList<int> takeIds()
    {
        QList<int> ids;
        for (const ChannelMessage& sent : take())
            ids.append(static_cast<int>(sent.command));
        return ids;
    }

    std::function<void(const ChannelMessage&)> onPush;

private:
    std::mutex m_mutex;
    std::vector<ChannelMessage> m_sent;
};

class FakeWindows : public WindowRequests
{
public:
    void askToShow(bool show) override { note(show ? "show" : "hide"); }
    void askToShowCheckRemote(bool show) override { note(show ? "warn" : "no warning"); }

    /// Calls since the last take.
    QByteArrayList take()
    {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_asked, {});
    }

private:
    void note(const char* what)
    {
        const std::scoped_lock lock(m_mutex);
        m_asked.append(what);
    }

    std::mutex m_mutex;
    QByteArrayList m_asked;
};

class FakePrograms : public ProgramControl
{
public:
    bool killProcess(const QString& name, const std::stop_token&) override
    {
        return note(u"kill "_s + name);
    }
    void keepProcessAlive(const QString& name, const std::stop_token&) override
    {
        note(u"keep "_s + name);
    }
    bool startProcess(const QString& name, const QStringList& arguments) override
    {
        return note(u"start "_s + name + u' ' + arguments.join(u' '));
    }

    QStringList calls() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_calls;
    }

private:
    bool note(const QString& call)
    {
        const std::scoped_lock lock(m_mutex);
        m_calls.append(call);
        return true;
    }

    mutable std::mutex m_mutex;
    QStringList m_calls;
};

class MemorySettings : public UserSettings
{
public:
    QVariant getUserData(const QString& key, const QVariant& defaultValue) override
    {
        return values.value(key, defaultValue);
    }
    bool saveUserData(const QString& key, const QVariant& value, quint64 signIn) override
    {
        if (signIn == m_signIn)
            values[key] = value;
        return true;
    }
    Saved trySaveUserData(const QString& key, const QVariant& value, quint64 signIn) override
    {
        return saveUserData(key, value, signIn) ? Saved::Done : Saved::Failed;
    }
    bool clearUserData() override
    {
        values.clear();
        ++m_signIn;
        return true;
    }
    quint64 currentSignIn() const override { return m_signIn; }

    QMap<QString, QVariant> values;

private:
    std::atomic<quint64> m_signIn = 1;
};

class FakeCamera : public CameraReports
{
public:
    void setAutoFraming(bool on, Direction direction) override
    {
        const std::scoped_lock lock(m_mutex);
        autoFraming = {on, direction};
    }
    void setSmartFraming(bool on, Direction direction) override
    {
        const std::scoped_lock lock(m_mutex);
        smartFraming = {on, direction};
    }
    void setCameraSwitch(int sw) override
    {
        const std::scoped_lock lock(m_mutex);
        cameraSwitch = sw;
    }

    // Read these only while no other thread reports.
    std::pair<bool, Direction> autoFraming{};
    std::pair<bool, Direction> smartFraming{};
    int cameraSwitch = -1;

private:
    std::mutex m_mutex;
};

/// Reports the three states set by the test in each pass.
class FakeDevices : public LocalDevices
{
public:
    bool ReadJsonConfig(const QString& path) override
    {
        rulesPath = path;
        return true;
    }
    void checkDevices(LocalDeviceStatus& status) override
    {
        status.setVornMicStatus(mic);
        status.setVornCamStatus(cam);
        status.setVornSpkStatus(spk);
        ++passes;
    }

    QString rulesPath;
    std::atomic<int> mic = 0;
    std::atomic<int> cam = 0;
    std::atomic<int> spk = 0;
    std::atomic<int> passes = 0;
};

/// A DeviceControl with fakes. Posted tasks do nothing unless the test says what they do.
struct DeviceWorld {
    /// @param ini  content of config.ini
    explicit DeviceWorld(const QByteArray& ini = {})
    {
        QFile file(folder.filePath(QStringLiteral("config.ini")));
        if (file.open(QIODevice::WriteOnly))
            file.write(ini);
        file.close();
        config.emplace(file.fileName());
    }

    DeviceControl& start()
    {
        device.reset();
        profile.emplace();
        auto fakeDevices = std::make_unique<FakeDevices>();
        devices = fakeDevices.get();
        device.emplace(
            DeviceControl::Services{.config = *config,
                                    .profile = *profile,
                                    .channel = channel,
                                    .windows = windows,
                                    .programs = programs,
                                    .registryValue =
                                        [this](const QString& name) {
                                            const std::scoped_lock lock(versionsMutex);
                                            return versions.value(name);
                                        },
                                    .localDevices = std::move(fakeDevices),
                                    .rulesPath = folder.filePath(QStringLiteral("config.json")),
                                    .executablePath = QStringLiteral("/opt/VORNApp")},
            DeviceControl::Timing{.statusPass = std::chrono::milliseconds(1),
                                  .pauseAfterUpdaterKill = std::chrono::milliseconds(20)});
        device->start(tasks, settings, *cameraReports);
        return *device;
    }

    void setVersion(const QString& name, const QString& value)
    {
        const std::scoped_lock lock(versionsMutex);
        versions[name] = value;
    }

    TaskQueue::Actions tasks;
    QTemporaryDir folder;
    FakeChannel channel;
    FakeWindows windows;
    FakePrograms programs;
    MemorySettings settings;
    FakeCamera camera;
    /// Receives the display's camera reports.
    CameraReports* cameraReports = &camera;
    FakeDevices* devices = nullptr;
    std::mutex versionsMutex;
    QMap<QString, QString> versions;
    std::optional<FileInfo> config;
    std::optional<UserProfile> profile;
    std::optional<DeviceControl> device;
};
