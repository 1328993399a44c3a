#include "LogText.h"

#include <QDateTime>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace
{

/// A run of logging_writer with its own folders.
struct Run {
    explicit Run(const QString& mode, const QString& folderOfLog = {})
        : logDir(folderOfLog.isEmpty() ? m_folder.filePath(u"log"_s) : folderOfLog)
        , tempDir(m_folder.filePath(u"temp"_s))
    {
        QDir().mkdir(tempDir);
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"TERM"_s); // no colours
        environment.insert(u"TZ"_s, u"XST-05:30"_s);
        for (const auto name : {"TMPDIR"_L1, "TMP"_L1, "TEMP"_L1})
            environment.insert(name, tempDir);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(LOGGING_WRITER),
                      {mode, logDir, m_folder.filePath(u"backup"_s), u"App.exe"_s});
        pid = process.processId();
        const bool ended = process.waitForFinished();
        // On Windows the C library ends a crashed program with an exit code.
        succeeded = ended && process.exitStatus() == QProcess::NormalExit && !process.exitCode();
        crashed = ended && !succeeded;
        errorText = process.readAllStandardError().replace("\r\n", "\n");
    }

private:
    QTemporaryDir m_folder;

public:
    const QString logDir;
    const QString tempDir;
    qint64 pid = 0;
    bool succeeded = false;
    bool crashed = false;
    QByteArray errorText;
};

struct Line {
    QByteArray severity;
    QByteArray time;
    QByteArray thread;
    QByteArray rest; // function and message
};

/// Splits a line; the severity is empty if the line does not have the fixed form.
Line parse(const QByteArray& line)
{
    static const QRegularExpression s_form(
        u"^\\[(INFO|WARNING|ERROR|FATAL)\\] \\[(\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{6})\\] "
        "\\[( *\\d+)\\] (\\[.*)$"_s,
        QRegularExpression::DotMatchesEverythingOption);
    const auto match = s_form.match(QString::fromUtf8(line));
    return {match.captured(1).toUtf8(), match.captured(2).toUtf8(), match.captured(3).toUtf8(),
            match.captured(4).toUtf8()};
}

} // namespace

class tst_LogForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void writesLinesInTheFixedForm();
    void writesLocalTimeAndPaddedThread();
    void writesEachRecordOnceToFileAndStandardError();
    void writesUnusualTexts();
    void logsACrashAlsoOfTheLogItself();

private:
    [[nodiscard]] QList<QByteArray> lines() const { return m_text.split('\n'); }
    [[nodiscard]] Line lineOf(const QByteArray& function) const;

    std::unique_ptr<Run> m_forms;
    QDateTime m_startedAt;
    QDateTime m_endedAt;
    QByteArray m_text;
};

void tst_LogForm::initTestCase()
{
    m_startedAt = QDateTime::currentDateTimeUtc().addSecs(-1);
    m_forms = std::make_unique<Run>(u"forms"_s);
    m_endedAt = QDateTime::currentDateTimeUtc();
    QVERIFY2(m_forms->succeeded, m_forms->errorText.constData());
    m_text = LogText::allBodies(m_forms->logDir);
    QVERIFY(m_text.endsWith('\n'));
}

Line tst_LogForm::lineOf(const QByteArray& function) const
{
    for (const auto& line : lines()) {
        if (line.contains("[" + function + "]"))
            return parse(line);
    }
    return {};
}

void tst_LogForm::writesLinesInTheFixedForm()
{
    const auto line = parse(lines().constFirst());
    QCOMPARE(line.severity, "INFO");
    QCOMPARE(line.rest, "[Sample::method]filepath:C:/Müller, count:42, flag:1, ratio:0.5, char:x, "
                        "low:-9223372036854775808, null:(null)");
    QCOMPARE(lineOf("Sample::empty").rest, "[Sample::empty]");
    QCOMPARE(lineOf("LateRecord::~LateRecord").rest, "[LateRecord::~LateRecord]gone");
    // A record that is written while another one is composed does not mix with it.
    QCOMPARE(lineOf("Inner::call").rest, "[Inner::call]inner");
    QCOMPARE(lineOf("Outer::call").rest, "[Outer::call]outer");
    // Records of libraries carry file and line in place of the function.
    QVERIFY(m_text.contains(QByteArray("] [logging_writer.cpp:")));
    QVERIFY(m_text.contains("]of a library\n"));
}

void tst_LogForm::writesLocalTimeAndPaddedThread()
{
    const auto line = lineOf("Sample::empty");
    const QTimeZone zone(19'800); // of TZ above
    const auto stamp = QString::number(m_startedAt.toTimeZone(zone).date().year()) + u'-' +
                       QString::fromLatin1(line.time.first(14));
    auto written = QDateTime::fromString(stamp, u"yyyy-MM-dd HH:mm:ss"_s);
    written.setTimeZone(zone);
    QVERIFY2(m_startedAt <= written && written <= m_endedAt, line.time.constData());

    QVERIFY(line.thread.size() >= 5);
    // On Linux the id of the main thread is that of the process.
    if (QSysInfo::kernelType() == u"linux"_s)
        QCOMPARE(line.thread, QByteArray::number(m_forms->pid).rightJustified(5, ' '));
}

void tst_LogForm::writesEachRecordOnceToFileAndStandardError()
{
    QVERIFY(parse(lines().at(1)).severity == "WARNING" && lines().at(1).endsWith("]careful"));
    QVERIFY(parse(lines().at(2)).severity == "ERROR" && lines().at(2).endsWith("]broken"));
    auto expected = m_text;
    expected.replace("]of a library", "] of a library"); // glog's own blank
    QCOMPARE(m_forms->errorText, expected);
    QCOMPARE(LogText::files(m_forms->logDir).size(), 1);
    QCOMPARE(LogText::files(m_forms->tempDir), QStringList()); // glog's own files
}

void tst_LogForm::writesUnusualTexts()
{
    QVERIFY(m_text.contains("[Sample::lines]first\nsecond\n\nfourth\n["));
    QVERIFY(m_text.contains("[Sample::newline]ends itself\n["));
    QVERIFY(!lineOf("Sample::utf16").severity.isEmpty());
    QCOMPARE(lineOf("Sample::foreign").rest, "[Sample::foreign]a\\nb\\x0d\\x09\\x1b[31m"
                                             "\\xc2\\x85\\xe2\\x80\\xa8ä\\x7fa\\x00b");
    const auto longLine = lineOf("Sample::longText").rest;
    QVERIFY(longLine.size() > 29'000);
    QVERIFY(longLine.endsWith("yyy"));
    QCOMPARE(lineOf("Sample::afterwards").rest, "[Sample::afterwards]still here");
}

void tst_LogForm::logsACrashAlsoOfTheLogItself()
{
    const Run run(u"crash"_s);
    QVERIFY(run.crashed);
    const auto text = LogText::allBodies(run.logDir);
    QVERIFY(text.contains("[Sample::crash]last line before\n[ERROR] ["));
    QVERIFY(text.contains("]*** Aborted at "));
    if (QSysInfo::kernelType() == u"linux"_s) // glog does not name the signal on Windows
        QVERIFY(text.contains("*** SIGSEGV"));
    QVERIFY(text.endsWith('\n'));
    for (const auto& line : text.trimmed().split('\n'))
        QVERIFY2(!parse(line).severity.isEmpty(), line.constData());

    const Run nested(u"nested-crash"_s);
    QVERIFY(nested.crashed);
    QVERIFY(LogText::allBodies(nested.logDir).contains("[Sample::crash]the line being written\n"));
}

QTEST_GUILESS_MAIN(tst_LogForm)

#include "tst_LogForm.moc"
