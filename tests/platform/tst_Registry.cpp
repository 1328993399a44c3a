#include "platform/Registry.h"
#include "rig/HelperProcess.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

const QString Root = u"HKEY_CURRENT_USER\\Software\\VORN test"_s;
const QString Key = Root + u"\\open\\command"_s;
const QString IniKey = u"HKEY_CURRENT_USER/Software/VORN test/open/command/"_s;

} // namespace

class tst_Registry : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keepsValues_data();
    void keepsValues();
    void readingCreatesNoKey();
    void sharesAFileWithOtherPrograms();
    void warnsOfADamagedFile();
    void keepsTheValuesOfConcurrentWriters();

private:
    std::unique_ptr<QTemporaryDir> m_home;
    QString m_file;
};

void tst_Registry::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_file = m_home->filePath(u"VORNApp/registry.ini"_s);
    qputenv("XDG_CONFIG_HOME", m_home->path().toUtf8());
}

void tst_Registry::cleanup()
{
    if (IsWindows)
        QSettings(Root, QSettings::NativeFormat).remove(QString());
}

void tst_Registry::keepsValues_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("default") << QString::fromUtf16(platform::DefaultValueName)
                             << QVariant(u"\"C:\\Program Files\\Teams.exe\" \"%1\""_s);
    QTest::newRow("comma") << u"DisplayIcon"_s << QVariant(u"C:\\zoom\\Zoom.exe,0"_s);
    QTest::newRow("signs") << u"odd = [name]; %20"_s
                           << QVariant(u"a;b=c #d\ne\tf @Invalid() 100%"_s);
    QTest::newRow("umlauts") << u"Überschrift"_s << QVariant(u"Grüße 会议 🙂"_s);
    QTest::newRow("blanks") << u"blanks"_s << QVariant(u"  both ends  "_s);
    QTest::newRow("empty") << u"empty"_s << QVariant(u""_s);
    QTest::newRow("number") << u"disable_local_dev"_s << QVariant(0);
}

void tst_Registry::keepsValues()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    QVERIFY(!platform::readRegistry(Key, name).isValid());
    QVERIFY(platform::writeRegistry(Key, name, value));
    QCOMPARE(platform::readRegistry(Key, name).toString(), value.toString());
    QVERIFY(!platform::readRegistry(Key + u"\\deeper"_s, name).isValid());

    if (IsWindows)
        return;
    const QSettings file(m_file, QSettings::IniFormat);
    QCOMPARE(file.value(IniKey + name).toString(), value.toString());
}

void tst_Registry::readingCreatesNoKey()
{
    QVERIFY(!platform::readRegistry(Key, u"DisplayIcon"_s).isValid());
    QVERIFY(!QFileInfo::exists(m_file));
    if (IsWindows) {
        const QSettings parent(u"HKEY_CURRENT_USER\\Software"_s, QSettings::NativeFormat);
        QVERIFY(!parent.childGroups().contains(u"VORN test"_s));
    }
}

void tst_Registry::sharesAFileWithOtherPrograms()
{
    if (IsWindows)
        QSKIP("The registry is no file on Windows.");
    const QString key = u"HKEY_CURRENT_USER\\System\\VORNApp"_s;
    QVERIFY(platform::writeRegistry(key, u"username"_s, u"ann@example.org"_s));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QCOMPARE(text, "[HKEY_CURRENT_USER]\nSystem\\VORNApp\\username=ann@example.org\n");
    file.close();

    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("[HKEY_CURRENT_USER]\nSystem\\VORNApp\\username=eve@example.org\n"
               "Zoom\\DisplayIcon=/opt/zoom/zoom,0\n");
    file.close();
    QCOMPARE(platform::readRegistry(key, u"username"_s).toString(), u"eve@example.org"_s);
    QCOMPARE(platform::readRegistry(u"HKEY_CURRENT_USER\\Zoom"_s, u"DisplayIcon"_s).toString(),
             u"/opt/zoom/zoom,0"_s); // an unquoted comma
    QVERIFY(QFile::remove(m_file));
    QVERIFY(!platform::readRegistry(key, u"username"_s).isValid());
}

void tst_Registry::warnsOfADamagedFile()
{
    if (IsWindows)
        QSKIP("The registry is no file there.");
    QVERIFY(QDir().mkpath(QFileInfo(m_file).path()));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("\x01 no [value\n\xff\n") > 0);
    file.close();
    QTest::ignoreMessage(QtWarningMsg, qPrintable(m_file + " holds lines that cannot be read"_L1));
    QVERIFY(!platform::readRegistry(Key, u"x"_s).isValid());
    QVERIFY(platform::writeRegistry(Key, u"x"_s, 1));
    QCOMPARE(platform::readRegistry(Key, u"x"_s).toInt(), 1);
}

void tst_Registry::keepsTheValuesOfConcurrentWriters()
{
    constexpr int Count = 25;
    std::vector<std::unique_ptr<QProcess>> writers;
    for (const auto& prefix : {u"a"_s, u"b"_s, u"c"_s}) {
        writers.push_back(std::make_unique<QProcess>());
        writers.back()->start(HelperProcess::path(u"platform_helper"_s),
                              {u"registry"_s, Key, prefix, QString::number(Count)});
    }
    for (const auto& writer : writers) {
        QVERIFY(writer->waitForFinished(60'000));
        QCOMPARE(writer->exitCode(), 0);
    }
    for (const auto& prefix : {u"a"_s, u"b"_s, u"c"_s}) {
        for (int i = 0; i < Count; ++i)
            QCOMPARE(platform::readRegistry(Key, prefix + QString::number(i)),
                     IsWindows ? QVariant(i) : QVariant(u"%1"_s.arg(i)));
    }
}

QTEST_GUILESS_MAIN(tst_Registry)
#include "tst_Registry.moc"
