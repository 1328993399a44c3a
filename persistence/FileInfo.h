#pragma once

#include <QString>
#include <QVariant>

class QSettings;

/// The installation's configuration.
///
/// Reads config.ini once, while it is constructed on the main thread; afterwards the values do not
/// change, so getters may be called from any thread. A value changed at run time is written to the
/// file through saveConfig() and takes effect here at the next start.
class FileInfo
{
public:
    /// @param configPath  config.ini; without the file, or where a value of it makes no sense, the
    ///                    built-in defaults stay in force and the log says so
    explicit FileInfo(QString configPath);
    ~FileInfo();
    Q_DISABLE_COPY_MOVE(FileInfo)

    /// The program's configuration: the first object that was constructed and still lives.
    static FileInfo& instance();

    const QString& configPath() const { return m_configPath; }
    /// Oldest firmware of the display that this program supports.
    const QString& k4vLowestVer() const { return m_k4vLowestVer; }
    /// Least time between two writes of the remote-device selection, in milliseconds, above 0.
    int useRemoteDeviceInterval() const { return m_useRemoteDeviceInterval; }
    bool useRemoteDevice() const { return m_useRemoteDevice; }
    bool supportLaunchZoom() const { return m_supportLaunchZoom; }
    bool supportLaunchTeams() const { return m_supportLaunchTeams; }
    bool supportLaunchGoogle() const { return m_supportLaunchGoogle; }
    /// Base URL of the account service.
    const QString& serverUrl() const { return m_serverUrl; }
    const QString& googleMeetingUrl() const { return m_googleMeetingUrl; }

    /// Writes one value to an INI file and logs what the file then holds. Task thread.
    void saveConfig(const QString& iniPath, const QString& key, const QVariant& value) const;
    /// Writes one value to the registry and logs what the registry then holds; booleans are stored
    /// as the integers 0 and 1. Task thread.
    void saveRegistry(const QString& registryPath, const QString& name,
                      const QVariant& value) const;

private:
    void readConfig();
    void readString(const QSettings& settings, const QString& key, QString& member) const;
    void readBool(const QSettings& settings, const QString& key, bool& member) const;
    void readInterval(const QSettings& settings, const QString& key, int& member) const;

    QString m_configPath;
    QString m_k4vLowestVer;
    int m_useRemoteDeviceInterval;
    bool m_useRemoteDevice = true;
    bool m_supportLaunchZoom = true;
    bool m_supportLaunchTeams = true;
    bool m_supportLaunchGoogle = true;
    QString m_serverUrl;
    QString m_googleMeetingUrl;
};

/// File version of an executable as "1.2.3.4"; empty when it carries none.
QString readFileVersion(const QString& path);
/// Product version of an executable without its fourth part, as "1.2.3"; empty when it carries
/// none.
QString readProductVersion(const QString& path);
