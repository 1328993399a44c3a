#include "app/Program.h"

#include "account/ImageFile.h"
#include "app/StandardTasks.h"
#include "peripherals/DeviceCheck.h"
#include "persistence/InstalledVersions.h"
#include "persistence/Keys.h"
#include "platform/Folders.h"

#include <QDir>
#include <QImageReader>
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
    // The pages show what ImageFile accepts.
    QImageReader::setAllocationLimit(int(ImageFile::MaxDecodedSize / qint64{1024} / 1024));
    m_fileInfo.emplace(settingsFile(u"config.ini"_s));
    m_programs.emplace(m_fileInfo->googleMeetingUrl());
    m_windowManager.emplace();
    m_deviceControl.emplace(deviceServices(executablePath));
    m_interface.emplace(m_fileInfo->serverUrl(), m_profile, settingsFile(u"userdata.db"_s),
                        m_channel);
    m_deviceControl->start(standardTasks(*m_fileInfo, m_interface->database(), *m_programs),
                           m_interface->database(), m_interface->camera());
    m_windowManager->setCloseExplained(m_fileInfo->closeExplained());
    QObject::connect(&*m_windowManager, &WindowManager::closeExplained, &*m_deviceControl, [this] {
        emit m_deviceControl->addTask(
            keys::task::SaveConfig, {m_fileInfo->configPath(), keys::config::CloseExplained, true});
    });
    qmlRegisterUncreatableType<CameraControl>("VORNApp", 1, 0, "CameraControl", QString());
}

Program::~Program()
{
    closeChannel();
}

DeviceControl::Services Program::deviceServices(const QString& executablePath)
{
    return {.config = *m_fileInfo,
            .profile = m_profile,
            .channel = m_channel,
            .windows = *m_windowManager,
            .programs = *m_programs,
            .registryValue = installedVersionValue,
            .localDevices = std::make_unique<DeviceCheck>(),
            .rulesPath = settingsFile(u"config.json"_s),
            .executablePath = executablePath};
}

void Program::publish(QQmlContext* context)
{
    context->setContextProperty(u"network"_s, &m_interface->network());
    context->setContextProperty(u"ptz"_s, &m_interface->camera());
    context->setContextProperty(u"announcer"_s, &m_announcer);
    context->setContextProperty(u"windowManager"_s, &*m_windowManager);
    context->setContextProperty(u"windowPlace"_s, &m_windowPlace);
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
    m_interface->camera().releaseMovements();
    m_deviceControl->endThreads();
}
