#include "platform/Registry.h"
#include "rig/HelperProcess.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

const QString kRoot = u"HKEY_CURRENT_USER\\Software\\VORN test"_s;
const QString kKey = kRoot + u"\\open\\command"_s;
const QString kIniKey = u"HKEY_CURRENT_USER/Software/VORN test/open/command/"_s;

} // namespace

class tst_Registry : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keepsValues_data();
    void keepsValues();
    void isTheFileThatOthersKnow();
    void seesWhatOthersWrite();
    void readsUnquotedCommas();
    void keepsWhatProcessesWriteAtOnce();
    void servesThreads();
    void saysWhenItCannotWrite();

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
    if (kIsWindows)
        QSettings(kRoot, QSettings::NativeFormat).remove(QString());
}

void tst_Registry::keepsValues_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("default") << QString::fromUtf16(platform::kDefaultValueName)
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
    QVERIFY(!platform::readRegistry(kKey, name).isValid());
    QVERIFY(platform::writeRegistry(kKey, name, value));
    QCOMPARE(platform::readRegistry(kKey, name).toString(), value.toString());
    QVERIFY(!platform::readRegistry(kKey + u"\\deeper"_s, name).isValid());

    if (kIsWindows)
        return;
    const QSettings file(m_file, QSettings::IniFormat);
    QCOMPARE(file.value(kIniKey + name).toString(), value.toString());
}

void tst_Registry::isTheFileThatOthersKnow()
{
    if (kIsWindows)
        QSKIP("The registry is no file there.");
    QVERIFY(platform::writeRegistry(u"HKEY_CURRENT_USER\\System\\VORNApp"_s, u"username"_s,
                                    u"ann@example.org"_s));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QCOMPARE(text, "[HKEY_CURRENT_USER]\nSystem\\VORNApp\\username=ann@example.org\n");
}

void tst_Registry::seesWhatOthersWrite()
{
    if (kIsWindows)
        QSKIP("The registry is no file there.");
    QVERIFY(platform::writeRegistry(kKey, u"version"_s, u"1.2.9"_s));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = QByteArray(file.readAll()).replace("1.2.9", "1.2.10");
    file.close();
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(text);
    file.close();
    QCOMPARE(platform::readRegistry(kKey, u"version"_s).toString(), u"1.2.10"_s);

    QVERIFY(QFile::remove(m_file));
    QVERIFY(!platform::readRegistry(kKey, u"version"_s).isValid());
}

void tst_Registry::readsUnquotedCommas()
{
    if (kIsWindows)
        QSKIP("The registry is no file there.");
    QVERIFY(QDir().mkpath(QFileInfo(m_file).path()));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[HKEY_CURRENT_USER]\nZoom\\DisplayIcon=/opt/zoom/zoom,0\n");
    file.close();
    QCOMPARE(platform::readRegistry(u"HKEY_CURRENT_USER\\Zoom"_s, u"DisplayIcon"_s).toString(),
             u"/opt/zoom/zoom,0"_s);
}

void tst_Registry::keepsWhatProcessesWriteAtOnce()
{
    constexpr int kCount = 25;
    std::vector<std::unique_ptr<QProcess>> writers;
    for (const auto& prefix : {u"a"_s, u"b"_s, u"c"_s}) {
        writers.push_back(std::make_unique<QProcess>());
        writers.back()->start(HelperProcess::path(u"platform_helper"_s),
                              {u"registry"_s, kKey, prefix, QString::number(kCount)});
    }
    for (const auto& writer : writers) {
        QVERIFY(writer->waitForFinished(60'000));
        QCOMPARE(writer->exitCode(), 0);
    }
    for (const auto& prefix : {u"a"_s, u"b"_s, u"c"_s}) {
        for (int i = 0; i < kCount; ++i)
            QCOMPARE(platform::readRegistry(kKey, prefix + QString::number(i)),
                     kIsWindows ? QVariant(i) : QVariant(u"%1"_s.arg(i)));
    }
}

void tst_Registry::servesThreads()
{
    std::atomic<int> failures = 0;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([thread, &failures] {
            const QString name = u"thread%1"_s.arg(thread);
            for (int i = 0; i < 10; ++i) {
                const bool stored = platform::writeRegistry(kKey, name, i) &&
                                    platform::readRegistry(kKey, name).toInt() == i;
                failures += stored ? 0 : 1;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(failures.load(), 0);
}

void tst_Registry::saysWhenItCannotWrite()
{
    if (kIsWindows)
        QSKIP("The registry is no file there.");
    QFile inTheWay(m_home->filePath(u"VORNApp"_s)); // where the folder should be
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    QVERIFY(!platform::writeRegistry(kKey, u"version"_s, u"1"_s));
    QVERIFY(!platform::readRegistry(kKey, u"never"_s).isValid());
}

QTEST_GUILESS_MAIN(tst_Registry)
#include "tst_Registry.moc"
