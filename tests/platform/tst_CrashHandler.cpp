#include "platform/linux/CrashReport.h"
#include "tests/platform/Crashed.h"

#include <QTemporaryDir>
#include <QTest>

#include <cstring>
#include <limits>

using namespace Qt::StringLiterals;

class tst_CrashHandler : public QObject
{
    Q_OBJECT

private slots:
    void reportsEveryKindOfCrash_data();
    void reportsEveryKindOfCrash();
    void logsThatTheFileCannotBeCreated();
    void doesNotWaitForALockOfTheCrashedThread();
};

void tst_CrashHandler::reportsEveryKindOfCrash_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QByteArray>("cause");
    QTest::newRow("forbidden") << u"forbidden"_s << QByteArray("signal: 11 (SIGSEGV");
    QTest::newRow("overflow") << u"overflow"_s << QByteArray("signal: 11 (SIGSEGV");
    QTest::newRow("bus") << u"bus"_s << QByteArray("signal: 7 (SIGBUS");
    QTest::newRow("abort") << u"abort"_s << QByteArray("signal: 6 (SIGABRT");
    QTest::newRow("throw") << u"throw"_s
                           << QByteArray("uncaught exception: std::runtime_error: boom");
}

void tst_CrashHandler::reportsEveryKindOfCrash()
{
    QFETCH(const QString, how);
    QFETCH(const QByteArray, cause);
    for (const bool onWorker : {false, true}) {
        const QTemporaryDir folder;
        const Crashed crashed({how, onWorker ? u"worker"_s : QString()}, folder.path());
        QVERIFY2(crashed.ended && crashed.isNamedCorrectly, qPrintable(crashed.lines.join(u'\n')));

        const QByteArray& report = crashed.dump;
        QVERIFY(report.startsWith("platform_helper crash report\n"));
        QVERIFY2(report.contains(cause), report.first(200).constData());
        QVERIFY(!onWorker || report.contains(" (crashing worker)\n"));
        QCOMPARE(report.contains("\nregisters:\n"), how != "throw"_L1);
        const qsizetype stack = report.indexOf("\nstack:\n");
        const qsizetype modules = report.indexOf("\nmodules:\n");
        QVERIFY(modules > 0 && stack > modules);
        QVERIFY(report.indexOf("platform_helper\n", modules) > 0);
        // A function of the program, which exports none.
        static const QRegularExpression s_function(u"\n(_Z\\w+|main)\\+0x[0-9a-f]+ \\[0x"_s);
        const QString names = QString::fromUtf8(report.sliced(stack));
        QVERIFY2(names.contains(s_function), qPrintable(names));

        const qsizetype line = crashed.lines.indexOf(u"Creating dump file..."_s);
        QCOMPARE(crashed.lines.value(line + 1),
                 u"Dump file created successfully at:./"_s + crashed.fileName);
        QVERIFY(crashed.lines.indexOf(u"earlier handler"_s) > line + 1);
    }
}

void tst_CrashHandler::logsThatTheFileCannotBeCreated()
{
    const Crashed crashed({u"forbidden"_s}, u"/proc"_s); // read-only even for root
    QVERIFY(crashed.ended);
    QCOMPARE(crashed.lines.value(0), u"Creating dump file..."_s);
    QVERIFY(crashed.lines.value(1).startsWith("Failed to create dump file:./platform_helper-"_L1));
    QCOMPARE(crashed.lines.value(2), u"earlier handler"_s);
}

void tst_CrashHandler::doesNotWaitForALockOfTheCrashedThread()
{
    const QTemporaryDir folder;
    const Crashed crashed({u"locked"_s}, folder.path());
    QVERIFY(crashed.ended);
    QVERIFY(crashed.dump.contains("\nmodules:\n"));
    QVERIFY(crashed.lines.contains(u"earlier handler"_s));
}

QTEST_GUILESS_MAIN(tst_CrashHandler)
#include "tst_CrashHandler.moc"
