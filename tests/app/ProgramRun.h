#pragma once

#include <QDir>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// A home folder for runs of the real program, which shares no file, socket or setting with the
/// user or with another test.
class ProgramHome
{
public:
    ProgramHome()
    {
        m_environment = QProcessEnvironment::systemEnvironment();
        const auto folder = [this](const char* variable, const QString& name) {
            const QString path = m_folder.filePath(name);
            QDir().mkpath(path);
            QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            m_environment.insert(QString::fromLatin1(variable), path);
        };
        m_environment.insert(QStringLiteral("HOME"), m_folder.path());
        folder("XDG_STATE_HOME", QStringLiteral("state"));
        folder("XDG_CONFIG_HOME", QStringLiteral("config"));
        folder("XDG_DATA_HOME", QStringLiteral("data"));
        folder("XDG_CACHE_HOME", QStringLiteral("cache"));
        folder("XDG_RUNTIME_DIR", QStringLiteral("run"));
        folder("TMPDIR", QStringLiteral("tmp"));
        m_environment.insert(QStringLiteral("VORN_PORTALHUB_SOCKET"), socketPath());
        copyProgram();
    }

    /// Sets a variable for later runs.
    void set(const QString& variable, const QString& value)
    {
        m_environment.insert(variable, value);
    }

    const QProcessEnvironment& environment() const { return m_environment; }
    QString socketPath() const { return m_folder.filePath(QStringLiteral("run/portalhub")); }
    QString path() const { return m_folder.path(); }
    /// Folder of the program, in which it keeps its settings.
    QString programFolder() const { return m_folder.filePath(QStringLiteral("app")); }

    /// Content of the file that stands in for the registry.
    QByteArray registry() const
    {
        QFile file(m_folder.filePath(QStringLiteral("config/VORNApp/registry.ini")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Starts the program. It writes its log to standard error as well.
    std::unique_ptr<QProcess> start(const QString& platform) const
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = m_environment;
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
        // Mesa leaks memory in libraries that are unloaded before the report, where a suppression
        // cannot name them. Runs off the screen do not use Mesa and still look for leaks.
        if (platform == QStringLiteral("offscreen"))
            environment.remove(QStringLiteral("DISPLAY"));
        else
            environment.insert(QStringLiteral("ASAN_OPTIONS"),
                               environment.value(QStringLiteral("ASAN_OPTIONS")) +
                                   QStringLiteral(":detect_leaks=0"));
        process->setProcessEnvironment(environment);
        process->setWorkingDirectory(m_folder.path());
        process->setProcessChannelMode(QProcess::MergedChannels);
        process->start(programFolder() + QStringLiteral("/VORNApp"), QStringList());
        return process;
    }

private:
    void copyProgram() const
    {
        const QDir source = QFileInfo(QStringLiteral(VORN_PROGRAM)).dir();
        QDir().mkpath(programFolder());
        for (const QString& name :
             source.entryList({QStringLiteral("VORNApp"), QStringLiteral("PatchPilot"),
                               QStringLiteral("config.json"), QStringLiteral("libPortalHub.so*")},
                              QDir::Files))
            QFile::copy(source.filePath(name), programFolder() + QLatin1Char('/') + name);
    }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
};

/// A virtual screen, which ends with this object.
class VirtualScreen : public QProcess
{
public:
    explicit VirtualScreen(const QStringList& options = {})
    {
        start(QStringLiteral("Xvfb"),
              QStringList{QStringLiteral("-displayfd"), QStringLiteral("1"),
                          QStringLiteral("-nolisten"), QStringLiteral("tcp")} +
                  options);
    }
    ~VirtualScreen() override
    {
        kill();
        waitForFinished();
    }

    /// Waits for the screen and returns its value for DISPLAY, ":" if it did not start.
    QString display(int patience = 60000)
    {
        while (!canReadLine() && waitForReadyRead(patience)) {
        }
        return u':' + QString::fromLatin1(readLine().trimmed());
    }
};

/// The end of the channel at the display. The program connects to it in the last step of its start.
class DisplayEnd
{
public:
    explicit DisplayEnd(const ProgramHome& home)
    {
        QLocalServer::removeServer(home.socketPath());
        m_server.listen(home.socketPath());
    }

    /// Waits until a program has started; null when none has.
    QLocalSocket* nextProgram(int patience = 60000)
    {
        if (!m_server.hasPendingConnections())
            QSignalSpy(&m_server, &QLocalServer::newConnection).wait(patience);
        return m_server.nextPendingConnection();
    }

private:
    QLocalServer m_server;
};
