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

constexpr int Patience = 60'000;
const QString Pipe = u"vorn-portalhub-of-the-test"_s;

/// Ends a program through the message loop of its main thread.
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
    environment.insert(u"VORN_PORTALHUB_SOCKET"_s, Pipe);
    process->setProcessEnvironment(environment);
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(QStringLiteral(VORN_PROGRAM), QStringList());
    return process;
}

} // namespace

/// The program with a plain page, under the real names of its files, pipes and mappings.
class tst_WindowsProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void answersAndQuitsAlsoAfterACrash();
    void handsOverToTheRunningInstance();

private:
    /// Waits until a program connects to the display, which is the last step of its start.
    [[nodiscard]] QLocalSocket* nextProgram();
    /// Waits until the program's log file contains the text.
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
    QVERIFY2(m_display->listen(Pipe), qPrintable(m_display->errorString()));
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
        QSignalSpy(m_display.get(), &QLocalServer::newConnection).wait(Patience);
    return m_display->nextPendingConnection();
}

void tst_WindowsProgram::readLog()
{
    const QString newest = m_logFolder.entryList(QDir::Files, QDir::Name).value(0);
    QFile file(m_logFolder.filePath(newest));
    m_log = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool tst_WindowsProgram::appears(const QByteArray& text)
{
    return QTest::qWaitFor(
        [&] {
            readLog();
            return m_log.contains(text);
        },
        Patience);
}

void tst_WindowsProgram::answersAndQuitsAlsoAfterACrash()
{
    const auto crashed = startProgram();
    QVERIFY(nextProgram());
    crashed->kill();
    QVERIFY(crashed->waitForFinished(Patience));

    const auto program = startProgram();
    QLocalSocket* const connection = nextProgram();
    QVERIFY(connection);
    connection->write("1 {\"cmd\":1,\"seq\":9,\"type\":2,\"volume\":41}\n");
    connection->flush();
    QVERIFY(appears("newVolume:41"));
    QVERIFY(connection->waitForReadyRead(Patience));
    QVERIFY(connection->readLine().startsWith("1 "));

    QElapsedTimer quitting;
    quitting.start();
    QVERIFY(postQuit(program->processId()));
    QVERIFY(program->waitForFinished(Patience));
    const qint64 took = quitting.elapsed();
    readLog();
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 0);
    QVERIFY2(took < 10'000, qPrintable(u"%1 ms"_s.arg(took)));

    // The order of the log is the same as on Linux; what the system answers is not.
    QVERIFY(m_log.contains("[main]logpath:C:\\ProgramData\\VORNApp"));
    QVERIFY(m_log.contains("[main]file version:" VORN_VERSION));
    QVERIFY(m_log.contains("\\PortalHub.dll, version:" VORN_VERSION));
    QCOMPARE(m_log.count("]thread start"), 3);
    QCOMPARE(m_log.count("]thread end"), 3);
}

void tst_WindowsProgram::handsOverToTheRunningInstance()
{
    const auto first = startProgram();
    QVERIFY(nextProgram());
    const auto second = startProgram();
    QVERIFY(second->waitForFinished(Patience));
    QCOMPARE(second->exitStatus(), QProcess::NormalExit);
    QCOMPARE(second->exitCode(), 0);
    QVERIFY(appears("onNewConnection]VORNApp reopen!"));
    QVERIFY(postQuit(first->processId()));
    QVERIFY(first->waitForFinished(Patience));
    QCOMPARE(first->exitCode(), 0);
}

QTEST_GUILESS_MAIN(tst_WindowsProgram)
#include "tst_WindowsProgram.moc"
