#include "platform/Processes.h"
#include "rig/HelperProcess.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::chrono::seconds Patience{20};

bool isRunning(const QString& name)
{
    const auto outcome = platform::isImageRunning(name, Patience);
    return outcome.finished && outcome.running;
}

} // namespace

class tst_Processes : public QObject
{
    Q_OBJECT

private slots:
    void killsEveryProcessOfTheName_data();
    void killsEveryProcessOfTheName();
    void findsDeletedProgramsAndScripts();
    void reportsThatThereIsNone();

private:
    QString install(const QString& name) const; // copies the helper
    QString makeScript(const QString& name, const QByteArray& commands) const;

    QTemporaryDir m_folder;
};

QString tst_Processes::install(const QString& name) const
{
    QString path = m_folder.filePath(name);
    if (IsWindows && !path.endsWith(".exe"_L1))
        path += ".exe"_L1;
    return QFile::copy(HelperProcess::path(u"platform_helper"_s), path) ? path : QString();
}

QString tst_Processes::makeScript(const QString& name, const QByteArray& commands) const
{
    QFile script(m_folder.filePath(name));
    if (script.open(QIODevice::WriteOnly))
        script.write("#!/bin/sh\n" + commands);
    script.setPermissions(script.permissions() | QFile::ExeOwner);
    return script.fileName();
}

void tst_Processes::killsEveryProcessOfTheName_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("imageName");
    const QString shortName = uniqueName(u"vt"_s);
    const QString longName = uniqueName(u"vorn-test-program-of-a-long-name-"_s);
    const QString windowsName = uniqueName(u"Vorn Test "_s) + ".exe"_L1;
    QTest::newRow("short") << shortName << shortName + ".exe"_L1;
    if (IsWindows) // tasklist truncates names after 25 characters
        return;
    QTest::newRow("long") << longName << longName + ".EXE"_L1;
    QTest::newRow("with .exe") << windowsName << windowsName;
}

void tst_Processes::killsEveryProcessOfTheName()
{
    QFETCH(QString, fileName);
    QFETCH(QString, imageName);
    const QString program = install(fileName);
    QVERIFY(!isRunning(imageName));
    HelperProcess first;
    HelperProcess second;
    QVERIFY(first.startAndWait(program, {u"wait"_s}));
    // Wine's taskkill kills one process in each call.
    QVERIFY(IsWindows || second.startAndWait(program, {u"wait"_s}));
    QVERIFY(isRunning(imageName));

    const auto outcome = platform::killByImageName(imageName, Patience);
    QVERIFY(outcome.finished);
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.errorText.isEmpty());
    if (!IsWindows) // on Windows they end after the call
        QVERIFY(!isRunning(imageName));
    for (HelperProcess* process : {&first, &second}) {
        QVERIFY(process->state() == QProcess::NotRunning || process->waitForFinished());
        if (!IsWindows) // which does not distinguish killed programs from failed ones
            QCOMPARE(process->exitStatus(), QProcess::CrashExit);
    }
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(imageName), 30'000);
}

void tst_Processes::findsDeletedProgramsAndScripts()
{
    if (IsWindows)
        QSKIP("Windows keeps the file of a running program, and a script has no process.");
    const QString name = uniqueName(u"vorn-test-removed-"_s);
    const QString program = install(name);
    HelperProcess process;
    QVERIFY(process.startAndWait(program, {u"wait"_s}));
    QVERIFY(QFile::remove(program));
    const QString scriptName = uniqueName(u"vorn-test-script-of-a-long-name-"_s);
    HelperProcess script;
    QVERIFY(script.startAndWait(makeScript(scriptName, "echo ready\nread line\n"), {}));
    QVERIFY(!isRunning(scriptName.chopped(1)));
    for (const QString& running : {name, scriptName}) {
        QVERIFY(isRunning(running + ".exe"_L1));
        QCOMPARE(platform::killByImageName(running, Patience).exitCode, 0);
        QVERIFY(!isRunning(running));
    }
}

void tst_Processes::reportsThatThereIsNone()
{
    const QString name = uniqueName(u"vorn-test-none-"_s);
    const auto outcome = platform::killByImageName(name, Patience);
    QVERIFY(outcome.finished);
    QVERIFY(outcome.exitCode != 0);
    QVERIFY(IsWindows || outcome.errorText.contains(name)); // not in every version of Windows
    QVERIFY(IsWindows || !isRunning(QString()));
    QVERIFY(!isRunning(u".exe"_s));
}

QTEST_GUILESS_MAIN(tst_Processes)
#include "tst_Processes.moc"
