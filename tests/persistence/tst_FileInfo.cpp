#include "persistence/FileInfo.h"

#include "platform/Registry.h"
#include "tests/support/LogCapture.h"

#include <QFile>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_FileInfo : public QObject
{
    Q_OBJECT

public:
    static void initMain();

private slots:
    void readsAndLogsEveryValue();
    void keepsDefaultForAnUnusableValue_data();
    void keepsDefaultForAnUnusableValue();
    void keepsDefaultsForAHostileFile_data();
    void keepsDefaultsForAHostileFile();
    void writesAValueForTheNextStart();
    void keepsAllOtherLinesOfTheFile_data();
    void keepsAllOtherLinesOfTheFile();
    void logsAWriteThatFails();
    void writesRegistryBooleansAsNumbers();

private:
    QString write(const QByteArray& content) const;

    QTemporaryDir m_dir;
};

namespace
{

void compareWithDefaults(const FileInfo& info)
{
    QCOMPARE(info.k4vLowestVer(), u"3.9.6"_s);
    QCOMPARE(info.useRemoteDeviceInterval(), 5000);
    QVERIFY(info.useRemoteDevice());
    QVERIFY(info.supportLaunchZoom());
    QVERIFY(info.supportLaunchTeams());
    QVERIFY(info.supportLaunchGoogle());
    QVERIFY(info.serverUrl().startsWith(u"https://"));
    QCOMPARE(info.googleMeetingUrl(), u"https://meet.google.com/landing?hs=197&authuser=0"_s);
}

} // namespace

void tst_FileInfo::initMain()
{
    static QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
}

QString tst_FileInfo::write(const QByteArray& content) const
{
    QFile file(m_dir.filePath(u"config.ini"_s));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) < 0)
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

void tst_FileInfo::readsAndLogsEveryValue()
{
    const QByteArray content =
        "[VORNApp]\nuse_remote_device_interval=250\nuse_remote_device=false\n"
        "support_launch_zoom=0\n"
        "support_launch_google=false\ngoogle_meeting_url=https://m.example/?a=1,2\n"
        "[K4V]\nlowest_ver=4.0.1\n[Server]\nurl=\" https://s.example/ / \"";
    const QString path = write(content);
    LogCapture log;
    const FileInfo info(path);
    const QString at = u"I FileInfo::FileInfo "_s;
    const QStringList lines = log.take();
    QCOMPARE(lines.value(0), at + path + u'\n' + QString::fromUtf8(content));
    QCOMPARE(lines.value(1), at + u"K4V/lowest_ver:4.0.1"_s);
    QCOMPARE(lines.value(3), at + u"VORNApp/use_remote_device:0"_s);
    QCOMPARE(lines.value(7), at + u"Server/url: https://s.example/ / "_s);
    QCOMPARE(info.k4vLowestVer(), u"4.0.1"_s);
    QCOMPARE(info.useRemoteDeviceInterval(), 250);
    QVERIFY(!info.useRemoteDevice());
    QVERIFY(!info.supportLaunchZoom());
    QVERIFY(info.supportLaunchTeams()); // not in the file
    QVERIFY(!info.supportLaunchGoogle());
    QCOMPARE(info.serverUrl(), u"https://s.example"_s);
    QCOMPARE(info.googleMeetingUrl(), u"https://m.example/?a=1,2"_s);
}

void tst_FileInfo::keepsDefaultForAnUnusableValue_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray interval = "[VORNApp]\nuse_remote_device_interval=";
    for (const char* value : {"soon", "", "0", "-5000", "5000.5", "1,2", "99999999999",
                              "2147483647", "@Invalid()", "@Size(1 2)", "@Variant(\\0\\0\\0\\xff)"})
        QTest::addRow("interval %s", value) << interval + value;
    QTest::newRow("switch is a list") << QByteArray("[VORNApp]\nuse_remote_device=false, false");
    QTest::newRow("switch is a size") << QByteArray("[VORNApp]\nsupport_launch_zoom=@Size(0 0)");
    QTest::newRow("address is a point") << QByteArray("[Server]\nurl=@Point(1 2)");
    QTest::newRow("address is empty") << QByteArray("[Server]\nurl= / ");
    QTest::newRow("version is nothing") << QByteArray("[K4V]\nlowest_ver=@Invalid()");
}

void tst_FileInfo::keepsDefaultForAnUnusableValue()
{
    QFETCH(const QByteArray, content);
    const QString path = write(content);
    LogCapture log;
    const FileInfo info(path);
    compareWithDefaults(info);
    QCOMPARE(log.take().filter(u"cannot be used"_s).size(), 1);
}

void tst_FileInfo::keepsDefaultsForAHostileFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QByteArray noise(200'000, Qt::Uninitialized);
    QRandomGenerator generator(7);
    generator.generate(noise.begin(), noise.end());
    QTest::newRow("binary") << noise;
    QTest::newRow("zeros") << QByteArray(50'000, '\0');
    QTest::newRow("no section ends") << QByteArray(100'000, '[');
    QTest::newRow("too large") << "[VORNApp]\nuse_remote_device_interval=7\n" +
                                      QByteArray(2'000'000, ';');
    QTest::newRow("overlong key") << "[VORNApp]\n" + QByteArray(100'000, 'k') + "=1\n";
}

void tst_FileInfo::keepsDefaultsForAHostileFile()
{
    QFETCH(const QByteArray, content);
    LogCapture log;
    compareWithDefaults(FileInfo(write(content)));
    if (content.contains('\0'))
        QVERIFY(!log.take().filter(u"E FileInfo::FileInfo"_s).isEmpty());
}

void tst_FileInfo::writesAValueForTheNextStart()
{
    const QString path = write("[VORNApp]\nuse_remote_device=true\n");
    const FileInfo info(path);
    LogCapture log;
    info.saveConfig(path, u"VORNApp/use_remote_device"_s, false);
    QCOMPARE(log.take(), QStringList{u"I FileInfo::saveConfig check "_s + path +
                                     u" VORNApp/use_remote_device:false"_s});
    QVERIFY(info.useRemoteDevice());
    QVERIFY(!FileInfo(path).useRemoteDevice());
}

void tst_FileInfo::keepsAllOtherLinesOfTheFile_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("comments and unknown lines")
        << "; a\n[VORNApp]\n# b\nnot a setting\n zoom = 1 \nother=%zz\n[K4V]\nzoom=2"_ba
        << "; a\n[VORNApp]\n# b\nnot a setting\nzoom=false\nother=%zz\n[K4V]\nzoom=2"_ba;
    QTest::newRow("Windows, key missing")
        << "[VORNApp]\r\na=1\r\n\r\n; b\r\n[K4V]\r\n"_ba
        << "[VORNApp]\r\na=1\r\n\r\n; b\r\nzoom=false\r\n[K4V]\r\n"_ba;
    QTest::newRow("section missing") << "[K4V]\na=1"_ba
                                     << "[K4V]\na=1\n\n[VORNApp]\nzoom=false\n"_ba;
    QTest::newRow("empty") << QByteArray() << "[VORNApp]\nzoom=false\n"_ba;
}

void tst_FileInfo::keepsAllOtherLinesOfTheFile()
{
    QFETCH(const QByteArray, before);
    const QString path = write(before);
    FileInfo(path).saveConfig(path, u"VORNApp/zoom"_s, false);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTEST(file.readAll(), "after");
    file.close();

    const QString odd = u"a\\b \"c\"; d, =\n\u00e4"_s; // of any other value
    FileInfo(path).saveConfig(path, u"VORNApp/zoom"_s, odd);
    QCOMPARE(QSettings(path, QSettings::IniFormat).value(u"VORNApp/zoom"_s).toString(), odd);
}

void tst_FileInfo::logsAWriteThatFails()
{
    const QString blocker = write("a file where a folder would have to be");
    const FileInfo info(m_dir.filePath(u"none.ini"_s));
    LogCapture log;
    info.saveConfig(blocker + u"/config.ini"_s, u"VORNApp/use_remote_device"_s, false);
    QCOMPARE(log.take().value(0),
             u"E FileInfo::saveConfig cannot write "_s + blocker + u"/config.ini"_s);
    info.saveConfig({}, {}, {});
    info.saveRegistry({}, {}, {});
    QCOMPARE(log.take(), (QStringList{u"E FileInfo::saveConfig path or key missing"_s,
                                      u"E FileInfo::saveRegistry path or name missing"_s}));
}

void tst_FileInfo::writesRegistryBooleansAsNumbers()
{
    const QString key = u"HKEY_CURRENT_USER\\Software\\VORNAppTest"_s;
    const FileInfo info(m_dir.filePath(u"none.ini"_s));
    LogCapture log;
    info.saveRegistry(key, u"disable_local_dev"_s, true);
    QCOMPARE(platform::readRegistry(key, u"disable_local_dev"_s).toString(), u"1"_s);
    info.saveRegistry(key, u"disable_local_dev"_s, false);
    QCOMPARE(platform::readRegistry(key, u"disable_local_dev"_s).toString(), u"0"_s);
    info.saveRegistry(key, u"username"_s, u"a@b.example"_s);
    const QString check = u"I FileInfo::saveRegistry check "_s + key;
    QCOMPARE(log.take(),
             (QStringList{check + u" disable_local_dev:1"_s, check + u" disable_local_dev:0"_s,
                          check + u" username:a@b.example"_s}));
}

QTEST_GUILESS_MAIN(tst_FileInfo)
#include "tst_FileInfo.moc"
