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

/// Calls as text. Any thread.
class CallLog
{
public:
    QStringList calls() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_calls;
    }
    /// Calls since the last take.
    QStringList take()
    {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_calls, {});
    }

protected:
    bool note(const QString& call)
    {
        const std::scoped_lock lock(m_mutex);
        m_calls.append(call);
        return true;
    }

private:
    mutable std::mutex m_mutex;
    QStringList m_calls;
};

class FakeWindows : public WindowRequests, public CallLog
{
public:
    void askToShow(bool show) override { note(show ? u"show"_s : u"hide"_s); }
    void askToShowCheckRemote(bool show) override { note(show ? u"warn"_s : u"no warning"_s); }
};

class FakePrograms : public ProgramControl, public CallLog
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
    bool startProcess(const QString& name, const QStringList& arguments,
                      const std::stop_token&) override
    {
        return note(u"start "_s + name + u' ' + arguments.join(u' '));
    }
};

class MemorySettings : public UserSettings
{
public:
    QVariant getUserData(const QString& key, const QVariant& defaultValue) override
    {
        return values.value(key, defaultValue);
    }
    Saved saveUserData(const QList<Value>& changed, quint64 signIn, OnLock) override
    {
        if (signIn != m_signIn)
            return Saved::Done;
        for (const Value& each : changed)
            values[each.key] = each.value;
        return Saved::Done;
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

/// Ignores the display's reports about its camera.
class FakeCamera : public CameraReports
{
public:
    void setAutoFraming(bool, Direction) override {}
    void setSmartFraming(bool, Direction) override {}
    void setCameraSwitch(int) override {}
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
