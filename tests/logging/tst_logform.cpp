#include "LogText.h"

#include <QDateTime>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

#include <map>

using namespace Qt::StringLiterals;

namespace
{

/// One run of logging_writer with folders of its own.
class Run
{
public:
    explicit Run(const QString& mode, const QString& logDir = {})
        : m_logDir(logDir.isEmpty() ? m_folder.filePath(u"log"_s) : logDir)
    {
        QDir(m_folder.path()).mkdir(u"temp"_s);
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"TERM"_s); // no colours
        environment.insert(u"TZ"_s, u"XST-05:30"_s);
        for (const auto* const name : {"TMPDIR", "TMP", "TEMP"})
            environment.insert(QLatin1StringView(name), tempDir());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(LOGGING_WRITER),
                      {mode, m_logDir, m_folder.filePath(u"backup"_s), u"App.exe"_s});
        m_pid = process.processId();
        m_ended = process.waitForFinished();
        m_exitStatus = process.exitStatus();
        m_exitCode = process.exitCode();
        m_errorText = process.readAllStandardError().replace("\r\n", "\n");
    }

    [[nodiscard]] bool succeeded() const { return m_ended && m_exitStatus == QProcess::NormalExit; }
    [[nodiscard]] bool crashed() const
    {
        // The C library of Windows ends a program that has crashed with an exit code.
        return m_ended && (m_exitStatus == QProcess::CrashExit || m_exitCode != 0);
    }
    [[nodiscard]] qint64 pid() const { return m_pid; }
    [[nodiscard]] QString logDir() const { return m_logDir; }
    [[nodiscard]] QString tempDir() const { return m_folder.filePath(u"temp"_s); }
    [[nodiscard]] QByteArray errorText() const { return m_errorText; }

private:
    QTemporaryDir m_folder;
    QString m_logDir;
    qint64 m_pid = 0;
    bool m_ended = false;
    QProcess::ExitStatus m_exitStatus = QProcess::CrashExit;
    int m_exitCode = 0;
    QByteArray m_errorText;
};

struct Line {
    QByteArray severity;
    QByteArray time;
    QByteArray thread;
    QByteArray rest; // function and message
};

/// The parts of a line's exact form; an empty severity when the line has another form.
Line parse(const QByteArray& line)
{
    static const QRegularExpression form(
        u"^\\[(INFO|WARNING|ERROR|FATAL)\\] \\[(\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{6})\\] "
        "\\[( *\\d+)\\] (\\[.*)$"_s,
        QRegularExpression::DotMatchesEverythingOption);
    const auto match = form.match(QString::fromUtf8(line));
    return {match.captured(1).toUtf8(), match.captured(2).toUtf8(), match.captured(3).toUtf8(),
            match.captured(4).toUtf8()};
}

} // namespace

class tst_LogForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void linesHaveTheExactForm();
    void timeIsLocalAndThreadIsPadded();
    void severities();
    void severalLinesGoOnUnprefixed();
    void oddTextsAreHarmless();
    void standardErrorCarriesTheSame();
    void oneFileAndNoStrays();
    void threadsRollWithoutLoss();
    void unwritableFolderKeepsStandardError();
    void crashIsLogged();
    void crashInsideTheLogStillEnds();

private:
    [[nodiscard]] QList<QByteArray> lines() const { return m_text.split('\n'); }
    [[nodiscard]] Line lineOf(const QByteArray& function) const;

    std::unique_ptr<Run> m_forms;
    qint64 m_startedAt = 0;
    qint64 m_endedAt = 0;
    QByteArray m_text;
};

void tst_LogForm::initTestCase()
{
    m_startedAt = QDateTime::currentSecsSinceEpoch();
    m_forms = std::make_unique<Run>(u"forms"_s);
    m_endedAt = QDateTime::currentSecsSinceEpoch();
    QVERIFY2(m_forms->succeeded(), m_forms->errorText().constData());
    m_text = LogText::allBodies(m_forms->logDir());
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

void tst_LogForm::linesHaveTheExactForm()
{
    const auto line = parse(lines().constFirst());
    QCOMPARE(line.severity, "INFO");
    QCOMPARE(line.rest, "[Sample::method]filepath:C:/Müller, count:42, flag:1, ratio:0.5, char:x, "
                        "low:-9223372036854775808, null:(null)");
    QCOMPARE(lineOf("Sample::empty").rest, "[Sample::empty]");
    QCOMPARE(lineOf("LastWords::~LastWords").rest, "[LastWords::~LastWords]gone");
    // Records that are written while another one is being put together stay whole.
    QCOMPARE(lineOf("Inner::call").rest, "[Inner::call]inner");
    QCOMPARE(lineOf("Outer::call").rest, "[Outer::call]outer");
    // A library's own records get the same form; its file and line take the function's place.
    QVERIFY(m_text.contains(QByteArray("] [logging_writer.cpp:")));
    QVERIFY(m_text.contains("]of a library\n"));
}

void tst_LogForm::timeIsLocalAndThreadIsPadded()
{
    const auto line = lineOf("Sample::empty");
    const auto time = QDateTime::fromSecsSinceEpoch(m_startedAt, QTimeZone(19'800));
    const auto end = QDateTime::fromSecsSinceEpoch(m_endedAt, QTimeZone(19'800));
    const auto year = QByteArray::number(time.date().year()) + '-';
    auto written = QDateTime::fromString(QString::fromLatin1(year + line.time.first(14)),
                                         u"yyyy-MM-dd HH:mm:ss"_s);
    written.setTimeZone(QTimeZone(19'800));
    QVERIFY2(time <= written && written <= end, line.time.constData());

    QVERIFY(line.thread.size() >= 5);
    if (QSysInfo::kernelType() == u"linux"_s) // there the first thread has the process's id
        QCOMPARE(line.thread, QByteArray::number(m_forms->pid()).rightJustified(5, ' '));
}

void tst_LogForm::severities()
{
    QCOMPARE(parse(lines().at(1)).severity, "WARNING");
    QCOMPARE(parse(lines().at(1)).rest, "[Sample::method]careful");
    QCOMPARE(parse(lines().at(2)).severity, "ERROR");
    QCOMPARE(parse(lines().at(2)).rest, "[Sample::method]broken");
    QCOMPARE(m_text.count("careful"), 1);
    QCOMPARE(m_text.count("broken"), 1);
}

void tst_LogForm::severalLinesGoOnUnprefixed()
{
    QVERIFY(m_text.contains("[Sample::lines]first\nsecond\n\nfourth\n["));
    QVERIFY(m_text.contains("[Sample::newline]ends itself\n["));
}

void tst_LogForm::oddTextsAreHarmless()
{
    QVERIFY(!lineOf("Sample::utf16").severity.isEmpty());
    QVERIFY(m_text.contains(QByteArrayView("[Sample::bytes]a\0b\n", 19)));
    const auto longLine = lineOf("Sample::longText").rest;
    QVERIFY(longLine.size() > 29'000);
    QVERIFY(longLine.endsWith("yyy"));
    QCOMPARE(lineOf("Sample::afterwards").rest, "[Sample::afterwards]still here");
}

void tst_LogForm::standardErrorCarriesTheSame()
{
    auto expected = m_text;
    expected.replace("]of a library", "] of a library"); // glog's own blank
    QCOMPARE(m_forms->errorText(), expected);
}

void tst_LogForm::oneFileAndNoStrays()
{
    QCOMPARE(LogText::files(m_forms->logDir()).size(), 1);
    const auto strays = QDir(m_forms->tempDir()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    QVERIFY2(strays.isEmpty(), qPrintable(strays.join(u' ')));
}

void tst_LogForm::threadsRollWithoutLoss()
{
    const Run run(u"threads"_s);
    QVERIFY(run.succeeded());
    const auto paths = LogText::files(run.logDir());
    QVERIFY(paths.size() >= 3);
    std::map<QByteArray, int> next;
    for (const auto& line : LogText::allBodies(run.logDir()).trimmed().split('\n')) {
        const auto rest = parse(line).rest;
        QVERIFY2(rest.startsWith("[Worker::run]"), line.constData());
        const auto parts = rest.mid(13, rest.indexOf('.') - 13).split(' ');
        QCOMPARE(parts.value(1).toInt(), next[parts.value(0)]++);
    }
    QCOMPARE(next, (std::map<QByteArray, int>{{"0", 3000}, {"1", 3000}, {"2", 3000}, {"3", 3000}}));
    for (const auto& path : paths.first(paths.size() - 1))
        QVERIFY(QFileInfo(path).size() >= 1 << 20);
}

void tst_LogForm::unwritableFolderKeepsStandardError()
{
    const QTemporaryDir folder;
    const auto blocker = folder.filePath(u"file"_s);
    QVERIFY(LogText::make(blocker));
    const Run run(u"forms"_s, blocker);
    QVERIFY(run.succeeded());
    QCOMPARE(run.errorText().count("Cannot write the log file"), 1);
    QVERIFY(run.errorText().contains("[Sample::method]broken\n"));
    QVERIFY(run.errorText().contains("[Sample::afterwards]still here\n"));
    QCOMPARE(LogText::files(run.tempDir()), QStringList());
}

void tst_LogForm::crashIsLogged()
{
    const Run run(u"crash"_s);
    QVERIFY(run.crashed());
    const auto text = LogText::allBodies(run.logDir());
    QVERIFY(text.contains("[Sample::crash]last line before\n[ERROR] ["));
    QVERIFY(text.contains("]*** Aborted at "));
    if (QSysInfo::kernelType() == u"linux"_s) // glog names the signal there only
        QVERIFY(text.contains("*** SIGSEGV"));
    QVERIFY(text.endsWith('\n'));
    for (const auto& line : text.trimmed().split('\n'))
        QVERIFY2(!parse(line).severity.isEmpty(), line.constData());
}

void tst_LogForm::crashInsideTheLogStillEnds()
{
    const Run run(u"nested-crash"_s);
    QVERIFY(run.crashed());
    QVERIFY(LogText::allBodies(run.logDir()).contains("[Sample::crash]the line being written\n"));
    if (QSysInfo::kernelType() == u"linux"_s)
        QVERIFY(run.errorText().contains("*** SIGSEGV"));
}

QTEST_GUILESS_MAIN(tst_LogForm)

#include "tst_logform.moc"
