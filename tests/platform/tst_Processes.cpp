#include "platform/Processes.h"
#include "rig/HelperProcess.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::chrono::seconds kPatience{20};

bool isRunning(const QString& name)
{
    const auto outcome = platform::isImageRunning(name, kPatience);
    return outcome.finished && outcome.running;
}

} // namespace

class tst_Processes : public QObject
{
    Q_OBJECT

private slots:
    void endsEveryProcessOfTheName_data();
    void endsEveryProcessOfTheName();
    void findsProgramsWhoseFileIsGone();
    void findsScripts();
    void sparesOthersOfTheSameBeginning();
    void sparesItself();
    void saysThatThereIsNone();
    void ignoresWhatHasEnded();

private:
    // A copy of the helper under a name of its own.
    QString install(const QString& name) const;

    QTemporaryDir m_folder;
};

QString tst_Processes::install(const QString& name) const
{
    QString path = m_folder.filePath(name);
    if (kIsWindows && !path.endsWith(".exe"_L1))
        path += ".exe"_L1;
    return QFile::copy(HelperProcess::path(u"platform_helper"_s), path) ? path : QString();
}

void tst_Processes::endsEveryProcessOfTheName_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("imageName");
    const QString shortName = uniqueName(u"vt"_s);
    const QString longName = uniqueName(u"vorn-test-program-of-a-long-name-"_s);
    const QString windowsName = uniqueName(u"Vorn Test "_s) + ".exe"_L1;
    QTest::newRow("short") << shortName << shortName + ".exe"_L1;
    if (kIsWindows) // whose list cuts names after 25 characters
        return;
    QTest::newRow("long") << longName << longName + ".EXE"_L1;
    QTest::newRow("spelt as on Windows") << windowsName << windowsName;
}

void tst_Processes::endsEveryProcessOfTheName()
{
    QFETCH(QString, fileName);
    QFETCH(QString, imageName);
    const QString program = install(fileName);
    QVERIFY(!isRunning(imageName));
    HelperProcess first;
    HelperProcess second;
    QVERIFY(first.startAndWait(program, {u"wait"_s}));
    // The command that Wine brings along ends one process at a call.
    QVERIFY(kIsWindows || second.startAndWait(program, {u"wait"_s}));
    QVERIFY(isRunning(imageName));

    const auto outcome = platform::killByImageName(imageName, kPatience);
    QVERIFY(outcome.finished);
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.errorText.isEmpty());
    if (!kIsWindows)                    // where the command only asks the system to end them
        QVERIFY(!isRunning(imageName)); // ended when the call returns, not some time later
    for (HelperProcess* process : {&first, &second}) {
        QVERIFY(process->state() == QProcess::NotRunning || process->waitForFinished());
        if (!kIsWindows) // which does not tell a killed program from one that has failed
            QCOMPARE(process->exitStatus(), QProcess::CrashExit);
    }
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(imageName), 30'000);
}

void tst_Processes::findsProgramsWhoseFileIsGone()
{
    if (kIsWindows)
        QSKIP("Windows keeps the file of a running program.");
    const QString name = uniqueName(u"vorn-test-removed-"_s);
    const QString program = install(name);
    HelperProcess process;
    QVERIFY(process.startAndWait(program, {u"wait"_s}));
    QVERIFY(QFile::remove(program));
    QVERIFY(isRunning(name));
    QCOMPARE(platform::killByImageName(name, kPatience).exitCode, 0);
}

void tst_Processes::findsScripts()
{
    if (kIsWindows)
        QSKIP("A script is no process there.");
    const QString name = uniqueName(u"vorn-test-script-of-a-long-name-"_s);
    QFile script(m_folder.filePath(name));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\necho ready\nread line\n");
    script.setPermissions(script.permissions() | QFile::ExeOwner);
    script.close();
    HelperProcess process;
    QVERIFY(process.startAndWait(script.fileName(), {}));
    QVERIFY(isRunning(name + ".exe"_L1));
    QVERIFY(!isRunning(name.chopped(1)));
    QCOMPARE(platform::killByImageName(name, kPatience).exitCode, 0);
    QVERIFY(!isRunning(name));
}

void tst_Processes::sparesOthersOfTheSameBeginning()
{
    const QString name = uniqueName(u"vorn-test-of-a-long-name-"_s);
    HelperProcess process;
    QVERIFY(process.startAndWait(install(name + u"-other"_s), {u"wait"_s}));
    QVERIFY(!isRunning(name));
    QVERIFY(platform::killByImageName(name, kPatience).exitCode != 0);
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
}

void tst_Processes::sparesItself()
{
    if (kIsWindows)
        QSKIP("The system's command spares nobody of the name.");
    const QString program = install(uniqueName(u"vorn-test-self-"_s));
    QProcess process;
    process.start(program, {u"kill-own-name"_s});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.readAllStandardOutput().trimmed(), "128"); // none but itself
}

void tst_Processes::saysThatThereIsNone()
{
    const QString name = uniqueName(u"vorn-test-none-"_s);
    const auto outcome = platform::killByImageName(name, kPatience);
    QVERIFY(outcome.finished);
    QVERIFY(outcome.exitCode != 0);
    QVERIFY(kIsWindows || outcome.errorText.contains(name)); // not every version says it there
    QVERIFY(kIsWindows || !isRunning(QString()));
    QVERIFY(!isRunning(u".exe"_s));
}

void tst_Processes::ignoresWhatHasEnded()
{
    if (kIsWindows)
        QSKIP("A process that has ended is gone there.");
    // Ended, but not yet waited for by its parent.
    const QString name = uniqueName(u"vorn-test-ended-"_s);
    HelperProcess parent;
    QFile script(m_folder.filePath(u"parent"_s));
    QVERIFY(script.open(QIODevice::WriteOnly));
    // The shell becomes a program that never waits for its children.
    script.write("#!/bin/sh\n\"$1\" exit &\necho ready\nexec \"$2\" wait\n");
    script.setPermissions(script.permissions() | QFile::ExeOwner);
    script.close();
    QVERIFY(parent.startAndWait(script.fileName(),
                                {install(name), HelperProcess::path(u"platform_helper"_s)}));
    QCOMPARE(parent.nextLine(), "ready");
    QTRY_VERIFY(!isRunning(name));
}

QTEST_GUILESS_MAIN(tst_Processes)
#include "tst_Processes.moc"
