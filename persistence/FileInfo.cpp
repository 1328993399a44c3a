#include "persistence/FileInfo.h"

#include "logging/Log.h"
#include "persistence/IniEdit.h"
#include "persistence/Keys.h"
#include "platform/Registry.h"
#include "platform/VersionResource.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QSettings>

#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr int DefaultInterval = 5000;
constexpr int LongestInterval = 24 * 60 * 60 * 1000;
// A real file has about a dozen lines, and QSettings loads a file of any size.
constexpr qint64 LargestConfig = 1 << 20;
constexpr int LockWaitMs = 500;

void logKept(const QString& key)
{
    Log::error("FileInfo::FileInfo") << "value of " << key << " cannot be used, default kept";
}

/// Like QSettings, locks the file against other writers and replaces it as a whole.
bool writeIniValue(const QString& path, const QString& key, const QVariant& value)
{
    QDir().mkpath(QFileInfo(path).path());
    QLockFile lock(path + ".lock"_L1);
    if (!lock.tryLock(LockWaitMs))
        return false;
    QFile file(path);
    if (file.exists() && (!QFileInfo(file).isFile() || file.size() > LargestConfig))
        return false;
    if (file.exists() && !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = file.isOpen() ? file.readAll() : QByteArray();
    file.close();
    QSaveFile written(path);
    return written.open(QIODevice::WriteOnly) &&
           written.write(withIniValue(content, key, value)) >= 0 && written.commit();
}

} // namespace

FileInfo::FileInfo(QString configPath)
    : m_configPath(std::move(configPath))
    , m_k4vLowestVer(keys::DefaultLowestFirmware)
    , m_useRemoteDeviceInterval(DefaultInterval)
    , m_serverUrl(QStringLiteral(VORN_ACCOUNT_URL))
    , m_googleMeetingUrl(keys::DefaultGoogleMeetingUrl)
{
    readConfig();
}

void FileInfo::readConfig()
{
    QFile file(m_configPath);
    if (!file.exists()) {
        Log::error("FileInfo::FileInfo") << m_configPath << " not exist!!!";
        return;
    }
    const QFileInfo info(m_configPath);
    if (!info.isFile() && !info.isDir()) { // reading a pipe would block the start
        Log::error("FileInfo::FileInfo") << m_configPath << " is not a file, ignored";
        return;
    }
    if (file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        const QByteArray content = file.read(LargestConfig + 1);
        if (content.size() > LargestConfig) {
            Log::error("FileInfo::FileInfo")
                << m_configPath << " is larger than " << LargestConfig << " bytes, ignored";
            return;
        }
        file.close();
        logContent(content);
    } else {
        Log::info("FileInfo::FileInfo")
            << "open " << m_configPath << " error:" << file.errorString();
    }

    const QSettings settings(m_configPath, QSettings::IniFormat);
    (void)settings.allKeys(); // the status is known once every section is parsed
    if (settings.status() == QSettings::FormatError)
        Log::error("FileInfo::FileInfo") << m_configPath << " holds lines that cannot be read";
    readString(settings, keys::config::LowestFirmware, m_k4vLowestVer);
    readInterval(settings, keys::config::RemoteDeviceInterval, m_useRemoteDeviceInterval);
    readBool(settings, keys::config::RemoteDevice, m_useRemoteDevice);
    readBool(settings, keys::config::LaunchZoom, m_supportLaunchZoom);
    readBool(settings, keys::config::LaunchTeams, m_supportLaunchTeams);
    readBool(settings, keys::config::LaunchGoogle, m_supportLaunchGoogle);
    m_closeExplained = settings.value(keys::config::CloseExplained, m_closeExplained).toBool();
    readServerUrl(settings);
    readString(settings, keys::config::GoogleMeetingUrl, m_googleMeetingUrl);
}

/// The lines of the file stay lines of the log, while its other control characters are escaped.
void FileInfo::logContent(const QByteArray& content) const
{
    auto message = Log::info("FileInfo::FileInfo");
    message << m_configPath;
    for (const QByteArray& line : content.split('\n'))
        message << "\n" << line;
}

void FileInfo::readString(const QSettings& settings, const QString& key, QString& member) const
{
    const QVariant value = settings.value(key, member);
    // QSettings splits a text at unquoted commas.
    if (value.typeId() == QMetaType::QStringList)
        member = value.toStringList().join(u',');
    else if (value.canConvert<QString>())
        member = value.toString();
    else
        logKept(key);
    Log::info("FileInfo::FileInfo") << key << ':' << member;
}

/// Blanks and trailing slashes are taken off, since paths are appended to the address.
void FileInfo::readServerUrl(const QSettings& settings)
{
    const QString byDefault = m_serverUrl;
    readString(settings, keys::config::ServerUrl, m_serverUrl);
    while (!m_serverUrl.isEmpty() && (m_serverUrl.back().isSpace() || m_serverUrl.back() == u'/'))
        m_serverUrl.chop(1);
    m_serverUrl = m_serverUrl.trimmed();
    if (!m_serverUrl.isEmpty())
        return;
    m_serverUrl = byDefault;
    logKept(keys::config::ServerUrl);
}

void FileInfo::readBool(const QSettings& settings, const QString& key, bool& member) const
{
    const QVariant value = settings.value(key, member);
    if (value.canConvert<bool>())
        member = value.toBool();
    else
        logKept(key);
    Log::info("FileInfo::FileInfo") << key << ':' << member;
}

void FileInfo::readInterval(const QSettings& settings, const QString& key, int& member) const
{
    bool isNumber = false;
    const int interval = settings.value(key, member).toInt(&isNumber);
    if (isNumber && interval > 0 && interval <= LongestInterval)
        member = interval;
    else
        logKept(key);
    Log::info("FileInfo::FileInfo") << key << ':' << member;
}

void FileInfo::saveConfig(const QString& iniPath, const QString& key, const QVariant& value) const
{
    if (iniPath.isEmpty() || key.isEmpty()) {
        Log::error("FileInfo::saveConfig") << "path or key missing";
        return;
    }
    if (!writeIniValue(iniPath, key, value))
        Log::error("FileInfo::saveConfig") << "cannot write " << iniPath;
    const QSettings written(iniPath, QSettings::IniFormat);
    Log::info("FileInfo::saveConfig")
        << "check " << iniPath << ' ' << key << ':' << written.value(key).toString();
}

void FileInfo::saveRegistry(const QString& registryPath, const QString& name,
                            const QVariant& value) const
{
    if (registryPath.isEmpty() || name.isEmpty()) {
        Log::error("FileInfo::saveRegistry") << "path or name missing";
        return;
    }
    // The program that reads the registry expects numbers, and Qt stores a boolean as text.
    const bool isBool = value.typeId() == QMetaType::Bool;
    if (!platform::writeRegistry(registryPath, name, isBool ? QVariant(value.toInt()) : value))
        Log::error("FileInfo::saveRegistry") << "cannot write " << registryPath;
    Log::info("FileInfo::saveRegistry") << "check " << registryPath << ' ' << name << ':'
                                        << platform::readRegistry(registryPath, name).toString();
}

QString readFileVersion(const QString& path)
{
    const auto versions = platform::fileVersions(path);
    if (!versions)
        return {};
    const auto& file = versions->file;
    return u"%1.%2.%3.%4"_s.arg(file[0]).arg(file[1]).arg(file[2]).arg(file[3]);
}

QString readProductVersion(const QString& path)
{
    const auto versions = platform::fileVersions(path);
    if (!versions)
        return {};
    const auto& product = versions->product;
    return u"%1.%2.%3"_s.arg(product[0]).arg(product[1]).arg(product[2]);
}
