#include "ProgramRun.h"
#include "app/SingleInstance.h"
#include "platform/InstanceObjects.h"

#include <csignal>
#include <future>

#include <sys/ipc.h>
#include <sys/shm.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr int Patience = 60000;

/// Takes the next connection like a first instance, with or without an answer. Returns its bytes.
QByteArray serve(QLocalServer& server, const QByteArray& answer)
{
    if (!server.waitForNewConnection(Patience))
        return {};
    QLocalSocket* const socket = server.nextPendingConnection();
    socket->waitForReadyRead(Patience);
    const QByteArray bytes = socket->readAll();
    server.close();
    socket->write(answer);
    socket->flush();
    socket->abort();
    return bytes;
}

} // namespace

/// Starts beside a running instance, a crashed one and one that ends.
class tst_SingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void handsOverAlsoWithoutKeyFiles();
    void startsBesideSegmentsOfCrashedPrograms();
    void succeedsAnInstanceThatEnds();
    void runsWithoutARuntimeFolderAndLeavesNoFile();
    void refusesToStartWithoutADisplay();

private:
    [[nodiscard]] QString serverName() const { return platform::instanceServerName(u"server"_s); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_SingleInstance::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_RUNTIME_DIR", m_folder->path().toUtf8());
}

void tst_SingleInstance::handsOverAlsoWithoutKeyFiles()
{
    SingleInstance first(u"key"_s, serverName());
    QCOMPARE(first.start(), SingleInstance::Outcome::First);
    QVERIFY(QFile::remove(m_folder->filePath(u"key"_s)));
    qputenv("XDG_ACTIVATION_TOKEN", "token-1"); // of the launcher of the second start
    QLocalServer server;
    QVERIFY(server.listen(serverName()));
    auto second = std::async(std::launch::async, [name = serverName()] {
        return SingleInstance(u"key"_s, name).start();
    });
    QCOMPARE(serve(server, "shown"), "activate token-1");
    QCOMPARE(second.get(), SingleInstance::Outcome::HandedOver);
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

/// Such a segment outlives its file, and a later file can have the same inode number.
void tst_SingleInstance::startsBesideSegmentsOfCrashedPrograms()
{
    QFile probe(m_folder->filePath(u"probe"_s));
    QVERIFY(probe.open(QIODevice::WriteOnly));
    const key_t near = ::ftok(probe.fileName().toUtf8().constData(), 'Q');
    QVERIFY(probe.remove());
    std::vector<int> segments;
    for (key_t key = near - 20; key < near + 60; ++key)
        segments.push_back(::shmget(key, 1, 0600 | IPC_CREAT | IPC_EXCL));
    SingleInstance first(u"key"_s, serverName());
    const SingleInstance::Outcome outcome = first.start();
    for (const int segment : segments)
        ::shmctl(segment, IPC_RMID, nullptr);
    QCOMPARE(outcome, SingleInstance::Outcome::First);
}

void tst_SingleInstance::succeedsAnInstanceThatEnds()
{
    SingleInstance first(u"key"_s, serverName());
    QCOMPARE(first.start(), SingleInstance::Outcome::First);
    QLocalServer server;
    QVERIFY(server.listen(serverName()));
    auto second = std::async(std::launch::async, [name = serverName()] {
        return SingleInstance(u"key"_s, name).start();
    });
    QCOMPARE(serve(server, {}), "activate");
    first.release();
    QCOMPARE(second.get(), SingleInstance::Outcome::First);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList());
}

void tst_SingleInstance::runsWithoutARuntimeFolderAndLeavesNoFile()
{
    ProgramHome home;
    DisplayEnd display(home);
    const QString temp = home.path() + u'/' + QString(100, u't'); // too long for a socket
    QVERIFY(QDir().mkdir(temp));
    home.set(u"TMPDIR"_s, temp);
    home.set(u"XDG_RUNTIME_DIR"_s, {});
    const auto first = home.start(u"offscreen"_s);
    QVERIFY(display.nextProgram());
    const auto second = home.start(u"offscreen"_s);
    QVERIFY(second->waitForFinished(Patience));
    QCOMPARE(second->exitCode(), 0);
    QByteArray log;
    QTRY_VERIFY_WITH_TIMEOUT((log += first->readAll()).contains("]VORNApp reopen!"), Patience);
    ::kill(static_cast<pid_t>(first->processId()), SIGTERM);
    QVERIFY(first->waitForFinished(Patience));
    QCOMPARE(QDir(u"/tmp"_s).entryList({u"VORNApp-*"_s, u"qipc_*"_s}), QStringList());
    QCOMPARE(QDir(temp).entryList({u"VORNApp*"_s, u"qipc_*"_s}), QStringList());
}

void tst_SingleInstance::refusesToStartWithoutADisplay()
{
    ProgramHome home;
    home.set(u"DISPLAY"_s, u":999"_s);
    const auto program = home.start(u"xcb"_s);
    QVERIFY(program->waitForFinished(Patience));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 1);
    const QByteArray output = program->readAll();
    QVERIFY2(output.contains("VORNApp cannot start: there is no display"), output.constData());
    QVERIFY2(output.contains("[qt.qpa.xcb]could not connect to display"), output.constData());
    QVERIFY(QDir(home.path()).entryList({u"*.dmp"_s}).isEmpty());
    QVERIFY(QDir(home.path() + "/run"_L1).isEmpty());
}

QTEST_GUILESS_MAIN(tst_SingleInstance)
#include "tst_SingleInstance.moc"
