#include "LogText.h"
#include "logging/LogFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr LogFile::Limits Limits{1 << 20, true};
constexpr std::time_t When = 1'747'650'312; // all files of a test begin in the same second

} // namespace

class tst_LogFile : public QObject
{
    Q_OBJECT

private slots:
    void beginsWithTheHeader();
    void losesNoRecordWhenThreadsStartManyFilesInOneSecond();
    void deletesTheOldestFilesBeyondTheBound();
    void retriesAnUnwritableFolderAfterAPause();
};

void tst_LogFile::beginsWithTheHeader()
{
    const QTemporaryDir folder;
    LogFile file;
    QVERIFY(!file.write("nowhere\n", When, Limits));
    const QString logFolder = folder.filePath(u"a/b"_s); // created with the file
    file.setDestination(logFolder + "/App"_L1, u".log"_s);
    QVERIFY(!QFile::exists(logFolder));

    QVERIFY(file.write("one\n", When, Limits));
    const auto stamp = QDateTime::fromSecsSinceEpoch(When);
    const auto path = u"%1/App%2.%3.log"_s.arg(logFolder, stamp.toString(u"yyyyMMdd-HHmmss"))
                          .arg(QCoreApplication::applicationPid());
    QCOMPARE(LogText::files(logFolder), QStringList{path});
    const auto expected =
        "Log file created at: " + stamp.toString(u"yyyy-MM-dd HH:mm:ss").toUtf8() +
        " \nRunning on machine: " + QSysInfo::machineHostName().toUtf8() +
        "\nLog line format: [IWEF] [mm-dd hh:mm:ss.uuuuuu] "
        "[thread_id] [class::function] msg\none\n";
    QCOMPARE(LogText::read(path), expected);
    if (QSysInfo::kernelType() != u"winnt") // Windows protects the folder instead.
        QVERIFY(!(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther)));
    QCOMPARE(file.size(), expected.size());
}

void tst_LogFile::losesNoRecordWhenThreadsStartManyFilesInOneSecond()
{
    constexpr int ThreadCount = 4;
    constexpr int RecordCount = 400;
    const QTemporaryDir folder;
    LogFile file;
    file.setDestination(folder.filePath(u"App"_s), u".log"_s);

    std::vector<std::thread> threads;
    threads.reserve(ThreadCount);
    for (int number = 0; number < ThreadCount; ++number) {
        threads.emplace_back([&file, number] {
            for (int count = 0; count < RecordCount; ++count) {
                const auto line =
                    QByteArray::number(number) + ' ' + QByteArray::number(count) + '\n';
                file.write({line.constData(), static_cast<std::size_t>(line.size())}, When,
                           {512, true});
            }
        });
    }
    for (auto& thread : threads)
        thread.join();

    const auto paths = LogText::files(folder.path());
    QVERIFY(paths.size() > 10);
    for (const auto& path : paths) {
        const auto text = LogText::read(path);
        QVERIFY(text.startsWith("Log file created at: "));
        QVERIFY2(text.size() < 512 + 16, qPrintable(path));
    }
    // In the order of the file names, the records of each thread are complete and in order.
    std::vector<int> next(ThreadCount, 0);
    for (const auto& line : LogText::allBodies(folder.path()).trimmed().split('\n')) {
        const auto parts = line.split(' ');
        QCOMPARE(parts.size(), 2);
        QCOMPARE(parts[1].toInt(), next.at(parts[0].toUInt())++);
    }
    QCOMPARE(next, std::vector<int>(ThreadCount, RecordCount));
}

void tst_LogFile::deletesTheOldestFilesBeyondTheBound()
{
    const QTemporaryDir folder;
    LogFile file;
    file.setDestination(folder.filePath(u"App"_s), u".log"_s);
    for (char record = 'a'; record <= 'z'; ++record) // each fills a file
        QVERIFY(file.write(std::string(2000, record) + '\n', When, {2000, true, 9000}));
    const auto paths = LogText::files(folder.path());
    QCOMPARE(paths.size(), 4); // the next one would pass the bound
    QCOMPARE(LogText::body(LogText::read(paths.first())).at(0), 'w');
    QCOMPARE(LogText::body(LogText::read(paths.last())).at(0), 'z');
}

void tst_LogFile::retriesAnUnwritableFolderAfterAPause()
{
    const QTemporaryDir folder;
    const auto blocker = folder.filePath(u"log"_s); // a file in place of the folder
    QVERIFY(LogText::make(blocker));
    LogFile patient(1h);
    LogFile eager(0ms);
    for (LogFile* file : {&patient, &eager}) {
        file->setDestination(blocker + u"/App"_s, u".log"_s);
        QVERIFY(!file->write("lost\n", When, Limits));
    }
    QVERIFY(QFile::remove(blocker));
    QVERIFY(!patient.write("lost during the pause\n", When, Limits));
    QVERIFY(eager.write("kept\n", When, Limits));
    patient.setDestination(blocker + u"/App"_s, u".log"_s); // ends the pause
    QVERIFY(patient.write("kept\n", When, Limits));
    QCOMPARE(LogText::allBodies(blocker), "kept\nkept\n");
}

QTEST_GUILESS_MAIN(tst_LogFile)

#include "tst_LogFile.moc"
