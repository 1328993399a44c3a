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

/// Limits the size of all files of the process during its lifetime.
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
    void leavesNoPartOfALineAndRecovers();
    void leavesNoFileWithoutAHeader();
};

void tst_LogFileFull::leavesNoPartOfALineAndRecovers()
{
    for (const bool stopWhenFull : {true, false}) {
        const QTemporaryDir folder;
        LogFile patient(1h);
        LogFile eager(0ms);
        const LogFile::Limits limits{1 << 20, stopWhenFull};
        for (LogFile* file : {&patient, &eager}) {
            file->setDestination(folder.filePath(u"App"_s), u".log"_s);
            QVERIFY(file->write("before\n", 0, limits));
            const SizeLimit limit(static_cast<rlim_t>(file->size()) + 4);
            QVERIFY(!file->write("does not fit\n", 0, limits));
        }
        QCOMPARE(patient.write("after\n", 0, limits), !stopWhenFull);
        QVERIFY(eager.write("after\n", 0, limits));
        QCOMPARE(LogText::allBodies(folder.path()),
                 stopWhenFull ? "before\nbefore\nafter\n" : "before\nafter\nbefore\nafter\n");
    }
}

void tst_LogFileFull::leavesNoFileWithoutAHeader()
{
    const QTemporaryDir folder;
    LogFile file(0ms);
    file.setDestination(folder.filePath(u"App"_s), u".log"_s);
    const SizeLimit limit(10);
    QVERIFY(!file.write("lost\n", 0, {1 << 20, true}));
    QVERIFY(LogText::files(folder.path()).isEmpty());
}

QTEST_GUILESS_MAIN(tst_LogFileFull)

#include "tst_LogFileFull.moc"
