#include "rig/HelperProcess.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <optional>

using namespace Qt::StringLiterals;

namespace
{

constexpr quint32 kAccessViolation = 0xC0000005;
constexpr quint32 kStackOverflow = 0xC00000FD;
constexpr quint32 kUncaughtException = 0xE0564F52; // the crash handler's own code
constexpr quint32 kAborted = 0xE0564F53;           // this one too

/// What a crashed helper left behind.
struct Crashed {
    bool ended = false; // in time and not as a program does that has finished
    QStringList lines;
    qint64 process = 0;
    QStringList files;
    QByteArray dump;
};

Crashed crash(const QStringList& how, const QString& folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(HelperProcess::path(u"platform_helper"_s), QStringList{u"crash"_s} + how);
    Crashed result;
    if (!process.waitForStarted())
        return result;
    result.process = process.processId();
    result.ended = process.waitForFinished(60'000) &&
                   (process.exitStatus() == QProcess::CrashExit || process.exitCode() != 0);
    result.lines = QString::fromUtf8(process.readAllStandardError()).split(u"\r\n"_s);
    result.files = QDir(folder).entryList({u"*.dmp"_s}, QDir::Files);
    QFile file(folder + u'/' + result.files.value(0));
    if (!result.files.isEmpty() && file.open(QIODevice::ReadOnly))
        result.dump = file.readAll();
    return result;
}

/// Little-endian number at an offset of a minidump; nothing beyond its end.
std::optional<quint32> number(const QByteArray& dump, qsizetype offset)
{
    if (offset < 0 || dump.size() - offset < qsizetype(sizeof(quint32)))
        return std::nullopt;
    return qFromLittleEndian<quint32>(dump.constData() + offset);
}

struct ExceptionStream {
    quint32 thread = 0;
    quint32 code = 0;
};

// Header: signature, version, number of streams, place of their directory. An entry of the
// directory: type, size, place.
std::optional<ExceptionStream> exceptionStream(const QByteArray& dump)
{
    constexpr quint32 kExceptionStreamType = 6;
    const quint32 count = number(dump, 8).value_or(0);
    const quint32 directory = number(dump, 12).value_or(0);
    for (quint32 i = 0; i < count; ++i) {
        const qsizetype entry = directory + 12 * i;
        if (number(dump, entry) != kExceptionStreamType)
            continue;
        const qsizetype stream = number(dump, entry + 8).value_or(0);
        return ExceptionStream{number(dump, stream).value_or(0),
                               number(dump, stream + 8).value_or(0)};
    }
    return std::nullopt;
}

} // namespace

class tst_CrashDump : public QObject
{
    Q_OBJECT

private slots:
    void writesAMinidump_data();
    void writesAMinidump();
    void saysThatTheFileCannotBeMade();
    void doesNotWaitForALockOfTheCrashedThread();
};

void tst_CrashDump::writesAMinidump_data()
{
    QTest::addColumn<QStringList>("how");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<bool>("hasEarlierHandler");
    const QString worker = u"worker"_s;
    QTest::newRow("null") << QStringList{u"forbidden"_s} << kAccessViolation << true;
    QTest::newRow("null, worker") << QStringList{u"forbidden"_s, worker} << kAccessViolation
                                  << true;
    QTest::newRow("overflow") << QStringList{u"overflow"_s} << kStackOverflow << false;
    QTest::newRow("overflow, worker")
        << QStringList{u"overflow"_s, worker} << kStackOverflow << false;
    QTest::newRow("throw") << QStringList{u"throw"_s} << kUncaughtException << true;
    QTest::newRow("throw, worker") << QStringList{u"throw"_s, worker} << kUncaughtException << true;
    QTest::newRow("abort") << QStringList{u"abort"_s} << kAborted << true;
}

void tst_CrashDump::writesAMinidump()
{
    QFETCH(QStringList, how);
    QFETCH(quint32, code);
    QFETCH(bool, hasEarlierHandler);
    const QTemporaryDir folder;
    const auto before = QDateTime::currentDateTime().addSecs(-1);
    const Crashed crashed = crash(how, folder.path());
    const auto after = QDateTime::currentDateTime();
    QVERIFY2(crashed.ended, qPrintable(crashed.lines.join(u'\n')));
    QCOMPARE(crashed.files.size(), 1);

    const QRegularExpression pattern(u"^platform_helper-(\\d{8}-\\d{6})-(\\d+)-(\\d+)\\.dmp$"_s);
    const auto name = pattern.match(crashed.files.first());
    QVERIFY2(name.hasMatch(), qPrintable(crashed.files.first()));
    QCOMPARE(name.captured(2).toLongLong(), crashed.process);
    const auto time = QDateTime::fromString(name.captured(1), u"yyyyMMdd-HHmmss"_s);
    QVERIFY(time >= before && time <= after);

    QVERIFY(crashed.dump.startsWith("MDMP"));
    const auto exception = exceptionStream(crashed.dump);
    QVERIFY(exception.has_value());
    QCOMPARE(exception->thread, name.captured(3).toUInt());
    QCOMPARE(exception->code, code);

    QCOMPARE(crashed.lines.value(0), u"Creating dump file..."_s);
    QCOMPARE(crashed.lines.value(1),
             u"Dump file created successfully at:.\\"_s + crashed.files.first());
    QCOMPARE(crashed.lines.indexOf(u"earlier handler"_s) > 1, hasEarlierHandler);
}

void tst_CrashDump::saysThatTheFileCannotBeMade()
{
    // Where Windows is emulated nobody can write to "/proc"; Windows keeps its own folder from
    // every user who is not an elevated administrator.
    const QString proc = u"Z:/proc"_s;
    const Crashed crashed = crash(
        {u"forbidden"_s}, QFileInfo::exists(proc) ? proc : qEnvironmentVariable("SystemRoot"));
    QVERIFY(crashed.ended);
    QCOMPARE(crashed.lines.value(0), u"Creating dump file..."_s);
    QVERIFY2(crashed.lines.value(1).startsWith("Failed to create dump file:.\\platform_helper-"_L1),
             qPrintable(crashed.lines.value(1)));
    QCOMPARE(crashed.lines.value(2), u"earlier handler"_s);
}

void tst_CrashDump::doesNotWaitForALockOfTheCrashedThread()
{
    const QTemporaryDir folder;
    const Crashed crashed = crash({u"locked"_s}, folder.path());
    QVERIFY(crashed.ended);
    QVERIFY(crashed.dump.startsWith("MDMP"));
}

QTEST_GUILESS_MAIN(tst_CrashDump)
#include "tst_CrashDump.moc"
