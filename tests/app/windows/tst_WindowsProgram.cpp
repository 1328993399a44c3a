#include <QDir>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <qt_windows.h>

#include <tlhelp32.h>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

constexpr int kPatience = 60'000;
const QString kPipe = u"vorn-portalhub-of-the-test"_s;

/// Ends a program as the system does, through the message loop of its first thread.
bool postQuit(qint64 process)
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof(entry);
    bool posted = false;
    for (BOOL more = Thread32First(snapshot, &entry); more && !posted;
         more = Thread32Next(snapshot, &entry)) {
        if (entry.th32OwnerProcessID == static_cast<DWORD>(process))
            posted = PostThreadMessageW(entry.th32ThreadID, WM_QUIT, 0, 0);
    }
    CloseHandle(snapshot);
    return posted;
}

std::unique_ptr<QProcess> startProgram()
{
    auto process = std::make_unique<QProcess>();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"VORN_PORTALHUB_SOCKET"_s, kPipe);
    process->setProcessEnvironment(environment);
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(QStringLiteral(VORN_PROGRAM), QStringList());
    return process;
}

} // namespace

/// The program, with a plain page, under the real names of the system.
class tst_WindowsProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void livesAndQuits();
    void handsOverToTheRunningInstance();
    void startsAfterACrash();

private:
    /// Waits until the program meets the display at the end of its start.
    [[nodiscard]] QLocalSocket* nextProgram();
    /// Waits until the program's log file says so.
    [[nodiscard]] bool appears(const QByteArray& text);
    void readLog();

    std::unique_ptr<QLocalServer> m_display;
    QDir m_logFolder{u"C:/ProgramData/VORNApp"_s, u"VORNAppPlain.exe*.log"_s};
    QByteArray m_log;
};

void tst_WindowsProgram::init()
{
    m_log.clear();
    for (const QString& earlier : m_logFolder.entryList(QDir::Files))
        m_logFolder.remove(earlier);
    m_display = std::make_unique<QLocalServer>();
    QVERIFY2(m_display->listen(kPipe), qPrintable(m_display->errorString()));
}

void tst_WindowsProgram::cleanup()
{
    if (QTest::currentTestFailed())
        std::fwrite(m_log.constData(), 1, std::size_t(m_log.size()), stderr);
    m_display.reset();
}

QLocalSocket* tst_WindowsProgram::nextProgram()
{
    if (!m_display->hasPendingConnections())
        QSignalSpy(m_display.get(), &QLocalServer::newConnection).wait(kPatience);
    return m_display->nextPendingConnection();
}

void tst_WindowsProgram::readLog()
{
    QFile file(m_logFolder.filePath(m_logFolder.entryList(QDir::Files, QDir::Name).value(0)));
    m_log = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool tst_WindowsProgram::appears(const QByteArray& text)
{
    return QTest::qWaitFor(
        [&] {
            readLog();
            return m_log.contains(text);
        },
        kPatience);
}

void tst_WindowsProgram::livesAndQuits()
{
    const auto program = startProgram();
    QLocalSocket* const connection = nextProgram();
    QVERIFY(connection);
    connection->write("1 {\"cmd\":1,\"seq\":9,\"type\":2,\"volume\":41}\n");
    connection->flush();
    QVERIFY(appears("newVolume:41"));
    QVERIFY(connection->waitForReadyRead(kPatience));
    QVERIFY(connection->readLine().startsWith("1 "));

    QElapsedTimer quitting;
    quitting.start();
    QVERIFY(postQuit(program->processId()));
    QVERIFY(program->waitForFinished(kPatience));
    const qint64 took = quitting.elapsed();
    readLog();
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 0);
    QVERIFY2(took < 10'000, qPrintable(u"%1 ms"_s.arg(took)));

    const QByteArrayList expected{
        "[main]filename:VORNAppPlain.exe",
        "[main]logpath:C:\\ProgramData\\VORNApp",
        "[main]file version:" VORN_VERSION,
        "[main]product version:",
        "[LoadCustomFont]Loaded font family:Lato as LatoRegular",
        "[WindowManager::WindowManager]WindowManager",
        "[UdpClient::bind]bound to port:49175",
        "[main]VORNApp quit!!!",
        "[DeviceControl::~DeviceControl]~DeviceControl",
        "[WindowManager::~WindowManager]~WindowManager",
    };
    qsizetype position = 0;
    for (const QByteArray& line : expected) {
        const qsizetype found = m_log.indexOf(line, position);
        QVERIFY2(found >= 0, line.constData());
        position = found;
    }
    QCOMPARE(m_log.count("]thread start"), 3);
    QCOMPARE(m_log.count("]thread end"), 3);
}

void tst_WindowsProgram::handsOverToTheRunningInstance()
{
    const auto first = startProgram();
    QVERIFY(nextProgram());
    const auto second = startProgram();
    QVERIFY(second->waitForFinished(kPatience));
    QCOMPARE(second->exitStatus(), QProcess::NormalExit);
    QCOMPARE(second->exitCode(), 0);
    QVERIFY(appears("onNewConnection]VORNApp reopen!"));
    QVERIFY(postQuit(first->processId()));
    QVERIFY(first->waitForFinished(kPatience));
    QCOMPARE(first->exitCode(), 0);
}

void tst_WindowsProgram::startsAfterACrash()
{
    for (int round = 0; round < 2; ++round) {
        const auto program = startProgram();
        QVERIFY(nextProgram());
        program->kill();
        QVERIFY(program->waitForFinished(kPatience));
    }
}

QTEST_GUILESS_MAIN(tst_WindowsProgram)
#include "tst_WindowsProgram.moc"
