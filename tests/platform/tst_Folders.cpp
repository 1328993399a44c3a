#include "platform/Folders.h"
#include "platform/InstanceObjects.h"
#include "platform/VersionResource.h"
#include "rig/HelperProcess.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr uid_t Nobody = 65534;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void becomeNobody()
{
    [[maybe_unused]] const bool done = ::setgid(Nobody) == 0 && ::setuid(Nobody) == 0;
}

void write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

} // namespace

class tst_Folders : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void findsTheFoldersOfTheLog();
    void keepsSettingsBesideTheExecutableIfItCanWrite();
    void keepsInstanceObjectsInFoldersOfTheUser();

private:
    // Answer of the helper installed in `folder`, run by a user without root's permissions.
    [[nodiscard]] QString settingsFolderOf(const QString& folder) const;
    [[nodiscard]] QString makeInstallation() const;

    std::unique_ptr<QTemporaryDir> m_home;
};

void tst_Folders::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("HOME", m_home->path().toUtf8());
    for (const char* name : {"XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        qunsetenv(name);
}

QString tst_Folders::settingsFolderOf(const QString& folder) const
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, m_home->filePath(u"data"_s));
    process.setProcessEnvironment(environment);
    if (::geteuid() == 0)
        process.setChildProcessModifier(becomeNobody);
    process.start(folder + "/platform_helper"_L1, {u"settings"_s});
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

QString tst_Folders::makeInstallation() const
{
    QString folder = m_home->filePath(u"app"_s);
    QDir().mkpath(folder);
    QFile::copy(HelperProcess::path(u"platform_helper"_s), folder + "/platform_helper"_L1);
    write(folder + "/config.ini"_L1, "[VORNApp]\n");
    write(folder + "/config.json"_L1, "{}\n");
    QFile::setPermissions(folder + "/config.ini"_L1, QFile::ReadOwner | QFile::ReadOther);
    return folder;
}

void tst_Folders::findsTheFoldersOfTheLog()
{
    QCOMPARE(platform::programDataFolder(), m_home->filePath(u".local/state/VORNApp"_s));
    QCOMPARE(platform::logBackupFolder(), m_home->filePath(u".local/state/vorn_temp/log/"_s));
    QVERIFY(QFileInfo(platform::programDataFolder()).isDir());

    qputenv("XDG_STATE_HOME", m_home->filePath(u"state/"_s).toUtf8());
    QCOMPARE(platform::programDataFolder(), m_home->filePath(u"state/VORNApp"_s));

    qputenv("XDG_STATE_HOME", "not/absolute"); // A relative path is ignored.
    QCOMPARE(platform::programDataFolder(), m_home->filePath(u".local/state/VORNApp"_s));
}

void tst_Folders::keepsSettingsBesideTheExecutableIfItCanWrite()
{
    const QString folder = makeInstallation();
    const QString own = m_home->filePath(u"data/VORNApp"_s);
    const auto writable = QFile::Permissions::fromInt(0x7777);
    QFile::setPermissions(m_home->path(), writable);
    QFile::setPermissions(folder, writable);
    QCOMPARE(settingsFolderOf(folder), folder);

    QFile::setPermissions(folder, QFile::Permissions::fromInt(0x5555));
    QFile::setPermissions(m_home->path(), QFile::Permissions::fromInt(0x5555));
    QCOMPARE(settingsFolderOf(folder), folder); // nowhere else either
    QFile::setPermissions(m_home->path(), writable);
    QCOMPARE(settingsFolderOf(folder), own);
    QCOMPARE(contentOf(own + "/config.ini"_L1), "[VORNApp]\n");
    QCOMPARE(contentOf(own + "/config.json"_L1), "{}\n");
    QVERIFY(QFile::permissions(own + "/config.ini"_L1) & QFile::WriteOwner);

    // Copied on the first use only, so that the user's changes remain.
    write(own + "/config.ini"_L1, "[VORNApp]\nuse_remote_device=false\n");
    QCOMPARE(settingsFolderOf(folder), own);
    QCOMPARE(contentOf(own + "/config.ini"_L1), "[VORNApp]\nuse_remote_device=false\n");
    QFile::setPermissions(folder, writable); // so that it can be removed
}

void tst_Folders::keepsInstanceObjectsInFoldersOfTheUser()
{
    if (::geteuid() != 0)
        QSKIP("Only root can give a folder to another user.");
    const auto folder = [] { return QFileInfo(platform::instanceServerName(u"s"_s)).path(); };
    const QString runtime = m_home->filePath(u"run"_s);
    const QString own = m_home->filePath(u"VORNApp-0"_s);
    qputenv("XDG_RUNTIME_DIR", runtime.toUtf8());
    qputenv("TMPDIR", m_home->path().toUtf8());
    QVERIFY(QDir().mkdir(runtime));
    QCOMPARE(folder(), runtime);
    QCOMPARE(::chown(qPrintable(runtime), Nobody, Nobody), 0);
    QCOMPARE(folder(), own);
    QCOMPARE(::chown(qPrintable(own), Nobody, Nobody), 0);
    QCOMPARE(folder(), u"/tmp/VORNApp-0"_s);
    platform::removeInstanceFolder();
    QVERIFY(!QFile::exists(u"/tmp/VORNApp-0"_s));
}

QTEST_GUILESS_MAIN(tst_Folders)
#include "tst_Folders.moc"
