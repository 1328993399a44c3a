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

constexpr LogFile::Limits wide{1 << 20, true};
constexpr std::time_t when = 1'747'650'312; // one fixed second, so that every roll falls into it

} // namespace

class tst_LogFile : public QObject
{
    Q_OBJECT

private slots:
    void beginsWithHeader();
    void losesNothingWhenThreadsRollWithinOneSecond();
    void makesMissingFolder();
    void retriesUnwritableFolderOnlyNowAndThen();
    void recoversWhenFolderBecomesWritable();
};

void tst_LogFile::beginsWithHeader()
{
    const QTemporaryDir folder;
    LogFile file;
    QVERIFY(!file.write("nowhere\n", when, wide));
    file.setDestination(folder.filePath(u"App"_s), u".log"_s);
    QVERIFY(LogText::files(folder.path()).isEmpty()); // nothing before the first record

    QVERIFY(file.write("one\n", when, wide));
    const auto stamp = QDateTime::fromSecsSinceEpoch(when);
    const auto path = folder.filePath(u"App%1.%2.log"_s.arg(stamp.toString(u"yyyyMMdd-HHmmss"))
                                          .arg(QCoreApplication::applicationPid()));
    QCOMPARE(LogText::files(folder.path()), QStringList{path});
    const auto expected =
        "Log file created at: " + stamp.toString(u"yyyy-MM-dd HH:mm:ss").toUtf8() +
        " \nRunning on machine: " + QSysInfo::machineHostName().toUtf8() +
        "\nLog line format: [IWEF] [mm-dd hh:mm:ss.uuuuuu] "
        "[thread_id] [class::function] msg\none\n";
    QCOMPARE(LogText::read(path), expected);
    if (QSysInfo::kernelType() != u"winnt") // Folders decide there.
        QVERIFY(!(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther)));
    QCOMPARE(file.size(), expected.size());
}

void tst_LogFile::losesNothingWhenThreadsRollWithinOneSecond()
{
    constexpr int threadCount = 4;
    constexpr int recordCount = 400;
    const QTemporaryDir folder;
    LogFile file;
    file.setDestination(folder.filePath(u"App"_s), u".log"_s);

    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int number = 0; number < threadCount; ++number) {
        threads.emplace_back([&file, number] {
            for (int count = 0; count < recordCount; ++count) {
                const auto line =
                    QByteArray::number(number) + ' ' + QByteArray::number(count) + '\n';
                file.write({line.constData(), static_cast<std::size_t>(line.size())}, when,
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
    // Read in the order of the names, each thread's records are complete and in order.
    std::vector<int> next(threadCount, 0);
    for (const auto& line : LogText::allBodies(folder.path()).trimmed().split('\n')) {
        const auto parts = line.split(' ');
        QCOMPARE(parts.size(), 2);
        QCOMPARE(parts[1].toInt(), next.at(parts[0].toUInt())++);
    }
    QCOMPARE(next, std::vector<int>(threadCount, recordCount));
}

void tst_LogFile::makesMissingFolder()
{
    const QTemporaryDir folder;
    LogFile file;
    file.setDestination(folder.filePath(u"a/b/App"_s), u".log"_s);
    QVERIFY(file.write("one\n", when, wide));
    QCOMPARE(LogText::allBodies(folder.filePath(u"a/b"_s)), "one\n");
}

void tst_LogFile::retriesUnwritableFolderOnlyNowAndThen()
{
    const QTemporaryDir folder;
    const auto blocker = folder.filePath(u"log"_s); // a file where the folder should be
    QVERIFY(LogText::make(blocker));
    LogFile file(1h);
    file.setDestination(blocker + u"/App"_s, u".log"_s);
    QVERIFY(!file.write("lost\n", when, wide));

    QVERIFY(QFile::remove(blocker));
    QVERIFY(!file.write("lost within the interval\n", when, wide));
    QVERIFY(!QFile::exists(blocker));
    file.setDestination(blocker + u"/App"_s, u".log"_s); // a new place is tried at once
    QVERIFY(file.write("kept\n", when, wide));
}

void tst_LogFile::recoversWhenFolderBecomesWritable()
{
    const QTemporaryDir folder;
    const auto blocker = folder.filePath(u"log"_s);
    QVERIFY(LogText::make(blocker));
    LogFile file(0ms);
    file.setDestination(blocker + u"/App"_s, u".log"_s);
    QVERIFY(!file.write("lost\n", when, wide));
    QVERIFY(QFile::remove(blocker));
    QVERIFY(file.write("kept\n", when, wide));
    QCOMPARE(LogText::allBodies(blocker), "kept\n");
}

QTEST_GUILESS_MAIN(tst_LogFile)

#include "tst_logfile.moc"
