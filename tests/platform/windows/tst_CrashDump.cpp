#include "tests/platform/Crashed.h"

#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <optional>

using namespace Qt::StringLiterals;

namespace
{

constexpr quint32 AccessViolation = 0xC0000005;
constexpr quint32 StackOverflow = 0xC00000FD;
constexpr quint32 UncaughtException = 0xE0564F52; // codes of the crash handler
constexpr quint32 Aborted = 0xE0564F53;

/// Little-endian number at an offset of a minidump; empty if it exceeds the file.
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

// Header: signature, version, number of streams, offset of their directory. Directory entry: type,
// size, offset.
std::optional<ExceptionStream> exceptionStream(const QByteArray& dump)
{
    constexpr quint32 ExceptionStreamType = 6;
    const quint32 count = number(dump, 8).value_or(0);
    const quint32 directory = number(dump, 12).value_or(0);
    for (quint32 i = 0; i < count; ++i) {
        const qsizetype entry = directory + 12 * i;
        if (number(dump, entry) != ExceptionStreamType)
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
    void logsThatTheFileCannotBeCreated();
    void doesNotWaitForALockOfTheCrashedThread();
};

void tst_CrashDump::writesAMinidump_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<quint32>("code");
    QTest::newRow("forbidden") << u"forbidden"_s << AccessViolation;
    QTest::newRow("overflow") << u"overflow"_s << StackOverflow;
    QTest::newRow("throw") << u"throw"_s << UncaughtException;
    QTest::newRow("abort") << u"abort"_s << Aborted;
}

void tst_CrashDump::writesAMinidump()
{
    QFETCH(const QString, how);
    QFETCH(const quint32, code);
    for (const bool onWorker : {false, true}) {
        const QTemporaryDir folder;
        const Crashed crashed({how, onWorker ? u"worker"_s : QString()}, folder.path());
        QVERIFY2(crashed.ended && crashed.isNamedCorrectly, qPrintable(crashed.lines.join(u'\n')));

        QVERIFY(crashed.dump.startsWith("MDMP"));
        const auto exception = exceptionStream(crashed.dump);
        QVERIFY(exception.has_value());
        QCOMPARE(qint64(exception->thread), crashed.thread);
        QCOMPARE(exception->code, code);
        // Wine sometimes takes the exit code of another thread that it ends.
        quint32 exitCode = crashed.exitCode;
        for (int i = 0; i < 4 && exitCode != code; ++i) {
            const QTemporaryDir other;
            exitCode = Crashed({how, onWorker ? u"worker"_s : QString()}, other.path()).exitCode;
        }
        QCOMPARE(exitCode, code);

        QCOMPARE(crashed.lines.value(0), u"Creating dump file..."_s);
        QCOMPARE(crashed.lines.value(1),
                 u"Dump file created successfully at:.\\"_s + crashed.fileName);
        // No signal of the C library corresponds to a stack overflow.
        QCOMPARE(crashed.lines.indexOf(u"earlier handler"_s) > 1, code != StackOverflow);
    }
}

void tst_CrashDump::logsThatTheFileCannotBeCreated()
{
    // Wine maps "/proc", which is read-only. Windows protects its own folder from users.
    const QString proc = u"Z:/proc"_s;
    const Crashed crashed({u"forbidden"_s},
                          QFileInfo::exists(proc) ? proc : qEnvironmentVariable("SystemRoot"));
    QVERIFY(crashed.ended);
    QCOMPARE(crashed.lines.value(0), u"Creating dump file..."_s);
    QVERIFY2(crashed.lines.value(1).startsWith("Failed to create dump file:.\\platform_helper-"_L1),
             qPrintable(crashed.lines.value(1)));
    QCOMPARE(crashed.lines.value(2), u"earlier handler"_s);
}

void tst_CrashDump::doesNotWaitForALockOfTheCrashedThread()
{
    const QTemporaryDir folder;
    const Crashed crashed({u"locked"_s}, folder.path());
    QVERIFY(crashed.ended);
    QVERIFY(crashed.dump.startsWith("MDMP"));
}

QTEST_GUILESS_MAIN(tst_CrashDump)
#include "tst_CrashDump.moc"
