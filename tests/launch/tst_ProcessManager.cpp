#include "launch/ProcessManager.h"
#include "platform/Folders.h"
#include "platform/Registry.h"
#include "tests/support/LogCapture.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>
#include <thread>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace
{

const QString ZoomKey =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\ZoomUMX"_s;
const QString TeamsKey =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\ms-teams.exe"_s;
const QString TeamsUrlKey =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Classes\\TeamsURL\\shell\\open\\command"_s;
const QString DefaultName = u"Default"_s;

} // namespace

/// Each test function has its own home folder, in which every program is looked for.
class tst_ProcessManager : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void startsAProgramByPath();
    void startsAProgramBesideTheApplication();
    void restartsAndKillsByName();
    void reportsNoFailureOnceTheProgramEnds();
    void readsPathsFromTheRegistry_data();
    void readsPathsFromTheRegistry();
    void startsZoom_data();
    void startsZoom();
    void startsTheFirstTeamsThatCanBeStarted();
    void opensGoogleMeetOnItsOwnThread();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_home->filePath(name); }
    QString write(const QString& name, const QByteArray& text) const;
    // Installs a program that records its calls; with `waits` it runs until it is killed.
    QString install(const QString& name, bool waits = false);
    // Installs a file that cannot be started.
    QString installBroken(const QString& name) const { return write(name, "not a program"); }
    // The recorded calls: name, number of arguments, then each argument in brackets.
    [[nodiscard]] QStringList calls() const;

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<LogCapture> m_log;
    ProcessManager m_programs{QString()};
    QByteArray m_path;
    QString m_waiting; // name of a program that may still run
};

void tst_ProcessManager::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_path = qgetenv("PATH");
    qputenv("HOME", m_home->path().toUtf8());
    qputenv("XDG_DATA_HOME", path(u"data"_s).toUtf8());
    qputenv("XDG_DATA_DIRS", path(u"system"_s).toUtf8());
    qputenv("XDG_CONFIG_HOME", path(u"config"_s).toUtf8());
    qputenv("VORN_TEST_CALLS", path(u"calls"_s).toUtf8());
    qputenv("PATH", path(u"bin"_s).toUtf8() + ':' + m_path);
    m_log = std::make_unique<LogCapture>();
}

void tst_ProcessManager::cleanup()
{
    m_log.reset();
    qputenv("PATH", m_path);
    if (!m_waiting.isEmpty())
        m_programs.killProcess(std::exchange(m_waiting, {}), {});
}

QString tst_ProcessManager::write(const QString& name, const QByteArray& text) const
{
    const QString full = QDir::isAbsolutePath(name) ? name : path(name);
    QDir().mkpath(QFileInfo(full).path());
    QFile file(full);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? full : QString();
}

QString tst_ProcessManager::install(const QString& name, bool waits)
{
    if (waits) {
        m_waiting = QFileInfo(name).fileName();
        ::mkfifo(QFile::encodeName(path(u"calls.pipe"_s)).constData(), 0600);
    }
    QString program = write(
        name, "#!/bin/sh\necho \"${0##*/} $#$(printf ' [%s]' \"$@\")\" >>\"$VORN_TEST_CALLS\"\n" +
                  QByteArray(waits ? "exec 3<>\"$VORN_TEST_CALLS.pipe\"\nread line <&3\n" : ""));
    QFile::setPermissions(program, QFile::permissions(program) | QFile::ExeOwner);
    return program;
}

QStringList tst_ProcessManager::calls() const
{
    QFile file(path(u"calls"_s));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

void tst_ProcessManager::startsAProgramByPath()
{
    const QString program = install(u"some folder/program"_s);
    QVERIFY(ProcessManager::startProcess(program));
    QCOMPARE(m_log->take(),
             (QStringList{u"I ProcessManager::startProcess path:"_s + program,
                          u"I ProcessManager::startProcess started process success"_s}));
    QTRY_COMPARE(calls(), QStringList{u"program 0 []"_s});

    const QString missing = path(u"missing"_s);
    QVERIFY(!ProcessManager::startProcess(missing));
    QCOMPARE(m_log->take(),
             (QStringList{u"I ProcessManager::startProcess path:"_s + missing,
                          u"E ProcessManager::startProcess started process failed:"_s}));
}

void tst_ProcessManager::startsAProgramBesideTheApplication()
{
    const QString name = u"vorn-test-beside-%1"_s.arg(QCoreApplication::applicationPid());
    const QString beside = install(QCoreApplication::applicationDirPath() + u'/' + name);
    install(u"bin/"_s + name + "-in-path"_L1);

    const bool started = m_programs.startProcess(name + ".exe"_L1, {u"update"_s, u"/x y"_s}, {});
    QVERIFY(started);
    QTRY_COMPARE(calls(), QStringList{name + " 2 [update] [/x y]"_L1});
    QVERIFY(QFile::remove(beside));
    QVERIFY(m_programs.startProcess(name + "-in-path.exe"_L1, {u"a"_s, QString()}, {}));
    QTRY_COMPARE(calls().value(1), name + "-in-path 2 [a] []"_L1);
    QVERIFY(!m_programs.startProcess(name + ".exe"_L1, {u"a"_s, u"b"_s}, {}));

    const QString function = u" ProcessManager::startProcess started process "_s;
    QCOMPARE(m_log->take(),
             (QStringList{u'I' + function + "success, "_L1 + name + ".exe update /x y"_L1,
                          u'I' + function + "success, "_L1 + name + "-in-path.exe a "_L1,
                          u'E' + function + "failed, "_L1 + name + ".exe a b"_L1}));
}

void tst_ProcessManager::restartsAndKillsByName()
{
    const QString name = u"vorn-test-kill-%1"_s.arg(QCoreApplication::applicationPid());
    install(u"bin/"_s + name, true);
    for (int pass = 0; pass < 2; ++pass) { // starts what is missing, and leaves it alone then
        m_programs.keepProcessAlive(name + ".exe"_L1, {});
        QTRY_COMPARE(calls(), QStringList{name + " 2 [] []"_L1});
    }
    m_log->take();

    QVERIFY(m_programs.killProcess(name + ".exe"_L1, {}));
    QCOMPARE(m_log->take(),
             QStringList{u"E ProcessManager::killProcess "_s + name + ".exe killed success"_L1});
    QVERIFY(!m_programs.killProcess(name + ".exe"_L1, {}));
    const QStringList lines = m_log->take();
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.first().startsWith(u"E ProcessManager::killProcess "_s + name +
                                     ".exe killed failed:"_L1));
    QVERIFY(!lines.first().endsWith(u':'));
}

void tst_ProcessManager::reportsNoFailureOnceTheProgramEnds()
{
    std::stop_source stop;
    stop.request_stop();
    const QString name = u"vorn-test-stopped-%1"_s.arg(QCoreApplication::applicationPid());
    install(u"bin/"_s + name);
    QVERIFY(!m_programs.killProcess(name, stop.get_token()));
    m_programs.keepProcessAlive(name, stop.get_token());

    const std::unique_ptr<QThread> task(QThread::create([this] {
        QThread::currentThread()->requestInterruption();
        QString target;
        ProcessManager::getShortcutTarget(path(u"missing"_s), target);
    }));
    task->start();
    QVERIFY(task->wait(10'000));
    QCOMPARE(m_log->take(),
             QStringList{u"I ProcessManager::killProcess kill "_s + name + " interrupted"_L1});
}

void tst_ProcessManager::readsPathsFromTheRegistry_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");
    const QString teams = u"C:\\Program Files\\App\\Teams.exe"_s;
    QTest::newRow("command line") << u"\"%1\" \"%2\""_s.arg(teams, u"%1"_s) << teams;
    QTest::newRow("icon") << u"%1,0"_s.arg(teams) << teams;
    QTest::newRow("plain, other case") << u"d:/zoom/ZOOM.EXE"_s << u"d:/zoom/ZOOM.EXE"_s;
    QTest::newRow("first of two") << u"C:\\a.exe.b.exe"_s << u"C:\\a.exe"_s;
    QTest::newRow("no drive") << u"Teams.exe"_s << u"Teams.exe"_s;
    QTest::newRow("quoted, no drive") << u"\"/opt/zoom\" %U"_s << u"\"/opt/zoom\" %U"_s;
}

void tst_ProcessManager::readsPathsFromTheRegistry()
{
    QFETCH(QString, value);
    QFETCH(QString, expected);
    const QString begin =
        u"I ProcessManager::readPathFromRegist REG:"_s + TeamsUrlKey + u"\\Default, value:"_s;
    QString found;
    QVERIFY(!ProcessManager::readPathFromRegist(TeamsUrlKey, DefaultName, found));
    QCOMPARE(m_log->take(),
             (QStringList{begin, u"E ProcessManager::readPathFromRegist value not exist!"_s}));

    QVERIFY(platform::writeRegistry(TeamsUrlKey, DefaultName, value));
    QVERIFY(!ProcessManager::readPathFromRegist(TeamsUrlKey, DefaultName, found));
    QCOMPARE(found, expected);
    QCOMPARE(m_log->take(),
             (QStringList{begin + value, u"E ProcessManager::readPathFromRegist path:"_s +
                                             expected + " not exist!"_L1}));

    const QString existing = write(u"here"_s, "");
    QVERIFY(platform::writeRegistry(TeamsUrlKey, DefaultName, existing));
    QVERIFY(ProcessManager::readPathFromRegist(TeamsUrlKey, DefaultName, found));
    QCOMPARE(found, existing);
}

void tst_ProcessManager::startsZoom_data()
{
    QTest::addColumn<QString>("registered"); // "good", "broken" or empty
    QTest::addColumn<bool>("hasShortcut");
    QTest::addColumn<QString>("started");
    QTest::newRow("registry") << u"good"_s << true << u"good 0 []"_s;
    QTest::newRow("broken registry") << u"broken"_s << true << u"shortcut 0 []"_s;
    QTest::newRow("shortcut") << QString() << true << u"shortcut 0 []"_s;
    QTest::newRow("broken, no shortcut") << u"broken"_s << false << QString();
    QTest::newRow("nothing") << QString() << false << QString();
}

void tst_ProcessManager::startsZoom()
{
    QFETCH(QString, registered);
    QFETCH(bool, hasShortcut);
    QFETCH(QString, started);
    install(u"zoom/good"_s);
    installBroken(u"zoom/broken"_s);
    if (!registered.isEmpty())
        QVERIFY(platform::writeRegistry(ZoomKey, u"DisplayIcon"_s, path(u"zoom/"_s + registered)));
    if (hasShortcut)
        write(u"Desktop/Zoom Workplace.desktop"_s,
              "[Desktop Entry]\nExec=" + install(u"zoom/shortcut"_s).toUtf8() + '\n');

    QCOMPARE(m_programs.startZoom(), !started.isEmpty());
    if (!started.isEmpty())
        QTRY_COMPARE(calls(), QStringList{started});
}

void tst_ProcessManager::startsTheFirstTeamsThatCanBeStarted()
{
    QVERIFY(!m_programs.startTeams());

    QCOMPARE(m_log->take().filter(u"findTeamsPath dir:"_s).size(), 3);

    // Every candidate exists. Each in turn is replaced by a file that does not start.
    const QStringList candidates{
        u"registered/one"_s, u"registered/two"_s, u"data/Microsoft/WindowsApps/ms-teams"_s,
        u"data/Microsoft/Teams/current/Teams"_s, u"data/Microsoft/Teams/previous/Teams"_s};
    for (const QString& candidate : candidates)
        install(candidate);
    QVERIFY(platform::writeRegistry(TeamsKey, DefaultName, path(candidates[0])));
    QVERIFY(platform::writeRegistry(TeamsUrlKey, DefaultName, path(candidates[1])));
    m_log->take();

    for (qsizetype broken = 0; broken < candidates.size(); ++broken) {
        QVERIFY(m_programs.startTeams());
        const QString expected =
            u"I ProcessManager::startProcess path:"_s + path(candidates[broken]);
        QCOMPARE(m_log->take().filter(u"startProcess path:"_s).last(), expected);
        QTRY_COMPARE(calls().size(), broken + 1); // the shell has read its file
        QFile::remove(path(candidates[broken]));
        installBroken(candidates[broken]);
    }
    QVERIFY(!m_programs.startTeams());
}

void tst_ProcessManager::opensGoogleMeetOnItsOwnThread()
{
    install(u"bin/xdg-open"_s);
    bool failed = true;
    std::thread([&] { // while the main thread is busy
        failed = ProcessManager(u"https://meet.example/a?hs=1&b=2"_s).openGoogleMeeting();
    })
        .join();
    QVERIFY(!failed);
    QTRY_COMPARE(calls(), QStringList{u"xdg-open 1 [https://meet.example/a?hs=1&b=2]"_s});
    QVERIFY(ProcessManager({}).openGoogleMeeting());
}

QTEST_GUILESS_MAIN(tst_ProcessManager)
#include "tst_ProcessManager.moc"
