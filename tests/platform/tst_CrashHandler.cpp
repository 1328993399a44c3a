#include "platform/linux/CrashReport.h"
#include "rig/HelperProcess.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace
{

/// What a crashed helper left behind.
struct Crashed {
    bool ended = false; // by a signal, in time
    QString errorOutput;
    qint64 process = 0;
    QStringList files;
    QByteArray report;
};

Crashed crash(const QStringList& how, const QString& folder)
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TZ"_s, u"XYZ-5:30"_s); // half an hour off every whole one
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(HelperProcess::path(u"platform_helper"_s), QStringList{u"crash"_s} + how);
    Crashed result;
    if (!process.waitForStarted())
        return result;
    result.process = process.processId();
    result.ended = process.waitForFinished(60'000) && process.exitStatus() == QProcess::CrashExit;
    result.errorOutput = QString::fromUtf8(process.readAllStandardError());
    result.files = QDir(folder).entryList({u"*.dmp"_s}, QDir::Files);
    QFile file(folder + u'/' + result.files.value(0));
    if (!result.files.isEmpty() && file.open(QIODevice::ReadOnly))
        result.report = file.readAll();
    return result;
}

} // namespace

class tst_CrashHandler : public QObject
{
    Q_OBJECT

private slots:
    void reports_data();
    void reports();
    void namesTheFileAfterTimeProcessAndThread();
    void saysThatTheFileCannotBeMade();
    void doesNotWaitForALockOfTheCrashedThread();
    void knowsTheCalendar();
    void cutsLongText();
};

void tst_CrashHandler::reports_data()
{
    QTest::addColumn<QStringList>("how");
    QTest::addColumn<QByteArray>("cause");
    QTest::addColumn<bool>("hasRegisters");
    QTest::newRow("forbidden") << QStringList{u"forbidden"_s} << QByteArray("signal: 11 (SIGSEGV")
                               << true;
    QTest::newRow("forbidden, worker")
        << QStringList{u"forbidden"_s, u"worker"_s}
        << QByteArray("(crashing worker)\nsignal: 11 (SIGSEGV") << true;
    QTest::newRow("overflow") << QStringList{u"overflow"_s} << QByteArray("signal: 11 (SIGSEGV")
                              << true;
    QTest::newRow("overflow, worker")
        << QStringList{u"overflow"_s, u"worker"_s} << QByteArray("signal: 11 (SIGSEGV") << true;
    QTest::newRow("bus") << QStringList{u"bus"_s} << QByteArray("signal: 7 (SIGBUS") << true;
    QTest::newRow("abort") << QStringList{u"abort"_s} << QByteArray("signal: 6 (SIGABRT") << true;
    QTest::newRow("throw") << QStringList{u"throw"_s}
                           << QByteArray("uncaught exception: std::runtime_error: boom") << false;
    QTest::newRow("throw, worker")
        << QStringList{u"throw"_s, u"worker"_s}
        << QByteArray("uncaught exception: std::runtime_error: boom") << false;
}

void tst_CrashHandler::reports()
{
    QFETCH(QStringList, how);
    QFETCH(QByteArray, cause);
    QFETCH(bool, hasRegisters);
    const QTemporaryDir folder;
    const Crashed crashed = crash(how, folder.path());
    QVERIFY2(crashed.ended, qPrintable(crashed.errorOutput));
    QCOMPARE(crashed.files.size(), 1);

    const QByteArray& report = crashed.report;
    QVERIFY(report.startsWith("platform_helper crash report\n"));
    QVERIFY2(report.contains(cause), report.first(200).constData());
    QCOMPARE(report.contains("\nregisters:\n"), hasRegisters);
    const qsizetype stack = report.indexOf("\nstack:\n");
    const qsizetype modules = report.indexOf("\nmodules:\n");
    QVERIFY(modules > 0 && stack > modules);
    QVERIFY(report.indexOf("platform_helper\n", modules) > 0);
    // A function of the program's own, which exports none.
    static const QRegularExpression function(u"\n(_Z\\w+|main)\\+0x[0-9a-f]+ \\[0x"_s);
    const QString names = QString::fromUtf8(report.sliced(stack));
    QVERIFY2(names.contains(function), qPrintable(names));

    // The log lines in their order, then the handler that was there before.
    const QString lines = u"Creating dump file...\nDump file created successfully at:./"_s +
                          crashed.files.first() + u'\n';
    QVERIFY2(crashed.errorOutput.contains(lines), qPrintable(crashed.errorOutput));
    QVERIFY(crashed.errorOutput.indexOf("earlier handler\n"_L1) >
            crashed.errorOutput.indexOf(lines));
}

void tst_CrashHandler::namesTheFileAfterTimeProcessAndThread()
{
    const QTemporaryDir folder;
    const auto before = QDateTime::currentDateTimeUtc();
    const Crashed crashed = crash({u"forbidden"_s}, folder.path());
    const auto after = QDateTime::currentDateTimeUtc();

    const QRegularExpression pattern(u"^platform_helper-(\\d{8}-\\d{6})-(\\d+)-(\\d+)\\.dmp$"_s);
    const auto match = pattern.match(crashed.files.value(0));
    QVERIFY2(match.hasMatch(), qPrintable(crashed.files.value(0)));
    QCOMPARE(match.captured(2).toLongLong(), crashed.process);
    QCOMPARE(match.captured(3).toLongLong(), crashed.process); // the main thread
    auto time = QDateTime::fromString(match.captured(1), u"yyyyMMdd-HHmmss"_s);
    time = QDateTime(time.date(), time.time(), QTimeZone(19'800));
    QVERIFY(time >= before.addSecs(-1) && time <= after);
}

void tst_CrashHandler::saysThatTheFileCannotBeMade()
{
    const Crashed crashed = crash({u"forbidden"_s}, u"/proc"_s); // not even root makes a file there
    QVERIFY(crashed.ended);
    const QStringList lines = crashed.errorOutput.split(u'\n');
    QCOMPARE(lines.value(0), u"Creating dump file..."_s);
    QVERIFY(lines.value(1).startsWith("Failed to create dump file:./platform_helper-"_L1));
    QCOMPARE(lines.value(2), u"earlier handler"_s);
}

void tst_CrashHandler::doesNotWaitForALockOfTheCrashedThread()
{
    const QTemporaryDir folder;
    const Crashed crashed = crash({u"locked"_s}, folder.path());
    QVERIFY(crashed.ended);
    QCOMPARE(crashed.files.size(), 1);
    QVERIFY(crashed.report.contains("\nmodules:\n"));
    QVERIFY(crashed.errorOutput.contains("earlier handler\n"_L1));
}

void tst_CrashHandler::knowsTheCalendar()
{
    // A little over a day at a time, through leap years of every kind.
    for (qint64 seconds = 0; seconds < 8'000'000'000; seconds += 90'061) {
        const auto time = platform::localTime(static_cast<std::time_t>(seconds), -3'600);
        const auto expected = QDateTime::fromSecsSinceEpoch(seconds - 3'600, QTimeZone::utc());
        const QDateTime actual(QDate(time.year, time.month, time.day),
                               QTime(time.hour, time.minute, time.second), QTimeZone::utc());
        if (actual != expected)
            QCOMPARE(actual, expected);
    }
}

void tst_CrashHandler::cutsLongText()
{
    platform::FixedText text;
    text << "number " << std::numeric_limits<long>::min() << " ";
    text.padded(7, 4).hex(0xBEEF);
    QCOMPARE(text.c_str(), "number -9223372036854775808 0007"
                           "0x000000000000beef");
    for (int i = 0; i < 100; ++i)
        text << "0123456789";
    QVERIFY(text.view().size() < 512);
    QCOMPARE(std::strlen(text.c_str()), text.view().size());
}

QTEST_GUILESS_MAIN(tst_CrashHandler)
#include "tst_CrashHandler.moc"
