#include "app/Program.h"

#include "peripherals/DeviceCheck.h"
#include "persistence/InstalledVersions.h"
#include "persistence/StandardTasks.h"
#include "platform/Folders.h"

#include <QDir>
#include <QtQml>

using namespace Qt::StringLiterals;

namespace
{

QString settingsFile(const QString& name)
{
    return QDir(platform::settingsFolder()).filePath(name);
}

} // namespace

Program::Program(const QString& executablePath)
{
    m_fileInfo.emplace(settingsFile(u"config.ini"_s));
    m_meetings.emplace([this] { return m_fileInfo->googleMeetingUrl(); });
    m_windowManager.emplace();
    m_deviceControl.emplace(deviceServices(executablePath));
    qmlRegisterUncreatableType<CameraControl>("VORNApp", 1, 0, "CameraControl", QString());
}

Program::~Program()
{
    closeChannel();
}

/// Made when the device control first asks for it, which is while it restores the account.
Interface& Program::objects()
{
    if (!m_interface)
        m_interface.emplace(m_fileInfo->serverUrl(), m_account, settingsFile(u"userdata.db"_s),
                            m_channel);
    return *m_interface;
}

DeviceControl::Services Program::deviceServices(const QString& executablePath)
{
    const auto userSettings = [this]() -> UserSettings& { return objects().database(); };
    return {.config = *m_fileInfo,
            .tasks = standardTasks(*m_fileInfo, userSettings, *m_meetings),
            .channel = m_channel,
            .windows = *m_windowManager,
            .programs = m_programs,
            .versionValue = installedVersionValue,
            .userSettings = userSettings,
            .camera = [this]() -> CameraReports& { return objects().camera(); },
            .localDevices = std::make_unique<DeviceCheck>(),
            .rulesPath = settingsFile(u"config.json"_s),
            .executablePath = executablePath};
}

void Program::publish(QQmlContext* context)
{
    context->setContextProperty(u"network"_s, &objects().network());
    context->setContextProperty(u"ptz"_s, &objects().camera());
    context->setContextProperty(u"windowManager"_s, &*m_windowManager);
    context->setContextProperty(u"deviceControl"_s, &*m_deviceControl);
}

void Program::openChannel()
{
    m_channel.open(&DeviceControl::DealChannelMsg);
}

void Program::closeChannel()
{
    m_channel.close();
}

void Program::endThreads()
{
    closeChannel();
    m_deviceControl->endThreads();
}
