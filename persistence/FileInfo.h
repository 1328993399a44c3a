#pragma once

#include <QString>
#include <QVariant>

class QSettings;

/// The installation's configuration.
///
/// Reads config.ini once, in the constructor on the main thread. After that no member changes, so
/// any thread may call the getters. A value that is changed at run time is written to the file by
/// saveConfig(), and the getters return it after the next start.
class FileInfo
{
public:
    /// @param configPath  config.ini. Where the file or a value is missing or unusable, the default
    ///                    is kept and the log says so.
    explicit FileInfo(QString configPath);
    Q_DISABLE_COPY_MOVE(FileInfo)

    const QString& configPath() const { return m_configPath; }
    /// Oldest firmware of the display that this program supports.
    const QString& k4vLowestVer() const { return m_k4vLowestVer; }
    /// Shortest time between two writes of the remote-device selection, in milliseconds, above 0.
    int useRemoteDeviceInterval() const { return m_useRemoteDeviceInterval; }
    bool useRemoteDevice() const { return m_useRemoteDevice; }
    bool supportLaunchZoom() const { return m_supportLaunchZoom; }
    bool supportLaunchTeams() const { return m_supportLaunchTeams; }
    bool supportLaunchGoogle() const { return m_supportLaunchGoogle; }
    /// Whether the first close of the window has been explained.
    bool closeExplained() const { return m_closeExplained; }
    /// Base URL of the account service, without a slash at its end.
    const QString& serverUrl() const { return m_serverUrl; }
    const QString& googleMeetingUrl() const { return m_googleMeetingUrl; }

    /// Writes one value to an INI file, reads it back and logs it. All other lines stay as they
    /// are. Task thread.
    /// @param key  "Section/name"
    void saveConfig(const QString& iniPath, const QString& key, const QVariant& value) const;
    /// Writes one value to the registry, reads it back and logs it. Booleans are stored as the
    /// integers 0 and 1. Task thread.
    void saveRegistry(const QString& registryPath, const QString& name,
                      const QVariant& value) const;

private:
    void readConfig();
    void logContent(const QByteArray& content) const;
    void readString(const QSettings& settings, const QString& key, QString& member) const;
    void readServerUrl(const QSettings& settings);
    void readBool(const QSettings& settings, const QString& key, bool& member) const;
    void readInterval(const QSettings& settings, const QString& key, int& member) const;

    QString m_configPath;
    QString m_k4vLowestVer;
    int m_useRemoteDeviceInterval;
    bool m_useRemoteDevice = true;
    bool m_supportLaunchZoom = true;
    bool m_supportLaunchTeams = true;
    bool m_supportLaunchGoogle = true;
    bool m_closeExplained = false;
    QString m_serverUrl;
    QString m_googleMeetingUrl;
};

/// File version of an executable as "1.2.3.4"; empty when it has none.
QString readFileVersion(const QString& path);
/// Product version of an executable without its fourth part, as "1.2.3"; empty when it has none.
QString readProductVersion(const QString& path);
