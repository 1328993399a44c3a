#include "LogText.h"
#include "logging/LogFile.h"

#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// No file of the process can grow beyond so many bytes while this lives.
class SizeLimit
{
public:
    explicit SizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit() { setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY_MOVE(SizeLimit)

private:
    rlimit m_before{};
};

} // namespace

class tst_LogFileFull : public QObject
{
    Q_OBJECT

private slots:
    void leavesNoHalfLineAndComesBack();
    void waitsWhenTold_data();
    void waitsWhenTold();
    void leavesNoFileWithoutHeader();
};

void tst_LogFileFull::leavesNoHalfLineAndComesBack()
{
    const QTemporaryDir folder;
    LogFile file(0ms);
    file.setDestination(folder.filePath(u"App"_s), u".log"_s);
    constexpr LogFile::Limits limits{1 << 20, true};
    QVERIFY(file.write("before\n", 0, limits));
    {
        const SizeLimit limit(static_cast<rlim_t>(file.size()) + 4);
        QVERIFY(!file.write("does not fit\n", 0, limits));
    }
    QVERIFY(file.write("after\n", 0, limits));
    QCOMPARE(LogText::files(folder.path()).size(), 1);
    QCOMPARE(LogText::allBodies(folder.path()), "before\nafter\n");
}

void tst_LogFileFull::waitsWhenTold_data()
{
    QTest::addColumn<bool>("stopWhenFull");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("stop") << true << QByteArray("before\n");
    QTest::newRow("go on") << false << QByteArray("before\nafter\n");
}

void tst_LogFileFull::waitsWhenTold()
{
    QFETCH(const bool, stopWhenFull);
    QFETCH(const QByteArray, expected);
    const QTemporaryDir folder;
    LogFile file(1h);
    file.setDestination(folder.filePath(u"App"_s), u".log"_s);
    const LogFile::Limits limits{1 << 20, stopWhenFull};
    QVERIFY(file.write("before\n", 0, limits));
    {
        const SizeLimit limit(static_cast<rlim_t>(file.size()));
        QVERIFY(!file.write("does not fit\n", 0, limits));
    }
    QCOMPARE(file.write("after\n", 0, limits), !stopWhenFull);
    QCOMPARE(LogText::allBodies(folder.path()), expected);
}

void tst_LogFileFull::leavesNoFileWithoutHeader()
{
    const QTemporaryDir folder;
    LogFile file(0ms);
    file.setDestination(folder.filePath(u"App"_s), u".log"_s);
    const SizeLimit limit(10);
    QVERIFY(!file.write("lost\n", 0, {1 << 20, true}));
    QVERIFY(LogText::files(folder.path()).isEmpty());
}

QTEST_GUILESS_MAIN(tst_LogFileFull)

#include "tst_logfile_full.moc"
