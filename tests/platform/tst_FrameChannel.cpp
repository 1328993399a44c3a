#include "platform/FrameChannel.h"
#include "rig/HelperProcess.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QTest>

#include <algorithm>
#include <cerrno>
#include <future>
#include <limits>
#include <vector>

#ifdef Q_OS_LINUX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;
using platform::FrameChannel;
using Step = FrameChannel::OpenStep;
using Outcome = FrameChannel::WaitOutcome;

namespace
{

constexpr std::size_t ViewSize = 1 << 20;
// Error codes for a name that does not exist, and for a view larger than the memory.
constexpr quint32 NoSuchName = IsWindows ? 2 : ENOENT;
constexpr quint32 TooSmall = IsWindows ? 5 : ENXIO;
constexpr std::chrono::milliseconds Short{30}; // for waits that time out
constexpr std::chrono::seconds Long{20};       // for waits that end earlier

QByteArray mappingCommand(std::size_t size)
{
    return "mapping " + QByteArray::number(qulonglong(size));
}

} // namespace

/// Reads what a writer in another process does, correct or not.
class tst_FrameChannel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void opensInThreeSteps();
    void refusesOtherKindsOfFiles();
    void postsBetweenWaitsCountAsOne();
    void copiesOnlyFromTheView();
    void noticesRenewedObjects_data();
    void noticesRenewedObjects();
    void keepsTheObjectsOfADeadWriter();
    void survivesTruncatedMemory();
    void refusesReservedMemory();
    void interruptEndsTheNextWait();

private:
    bool startWriter();
    bool openAll();
    Outcome wait(std::chrono::milliseconds patience = Long)
    {
        return m_channel->wait(patience).outcome;
    }

    QString m_mapping;
    QString m_event;
    std::unique_ptr<FrameChannel> m_channel;
    std::unique_ptr<HelperProcess> m_writer;
};

bool tst_FrameChannel::startWriter()
{
    m_writer = std::make_unique<HelperProcess>();
    return m_writer->startAndWait(HelperProcess::path(u"frame_writer"_s), {m_mapping, m_event});
}

/// Has both objects made and opens them.
bool tst_FrameChannel::openAll()
{
    return m_writer->command(mappingCommand(ViewSize)) && m_writer->command("event") &&
           m_channel->open().failedAt == Step::Done;
}

void tst_FrameChannel::init()
{
    m_mapping = uniqueName(u"vorn_test_frames_"_s);
    m_event = uniqueName(u"vorn_test_event_"_s);
    m_channel =
        platform::makeFrameChannel(m_mapping.toStdString(), m_event.toStdString(), ViewSize);
    QVERIFY(startWriter());
}

void tst_FrameChannel::cleanup()
{
    m_channel.reset();
    m_writer.reset();
}

void tst_FrameChannel::opensInThreeSteps()
{
    QCOMPARE(wait(), Outcome::Failed);
    const auto failsAt = [this](Step step, quint32 error) {
        const auto result = m_channel->open();
        return result.failedAt == step && result.error == error && !m_channel->isOpen();
    };
    QVERIFY(failsAt(Step::Mapping, NoSuchName));
    QVERIFY(m_writer->command(mappingCommand(ViewSize / 2)));
    QVERIFY(failsAt(Step::View, TooSmall));
    QVERIFY(m_writer->command(mappingCommand(ViewSize)));
    QVERIFY(failsAt(Step::Event, NoSuchName));
    QVERIFY(m_writer->command("event"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);
    QVERIFY(m_channel->isOpen());
}

void tst_FrameChannel::refusesOtherKindsOfFiles()
{
#ifdef Q_OS_LINUX
    const QString path = u"/dev/shm/"_s + m_mapping;
    for (const auto& [kind, step] : {std::pair(S_IFIFO, Step::View), {S_IFSOCK, Step::Mapping}}) {
        QCOMPARE(::mknod(QFile::encodeName(path).constData(), kind | 0600, 0), 0);
        QCOMPARE(m_channel->open().failedAt, step);
        QVERIFY(QFile::remove(path));
    }
    QVERIFY(QDir().mkdir(path));
    QCOMPARE(m_channel->open().failedAt, Step::View);
    QVERIFY(QDir().rmdir(path));
    QVERIFY(m_writer->command(mappingCommand(ViewSize)));
    const QString event = u"/dev/shm/sem."_s + m_event;
    QCOMPARE(::mkfifo(QFile::encodeName(event).constData(), 0600), 0);
    QCOMPARE(m_channel->open().failedAt, Step::Event);
#endif
}

void tst_FrameChannel::postsBetweenWaitsCountAsOne()
{
    QVERIFY(openAll());
    QVERIFY(m_writer->command("post 1000"));
    QCOMPARE(wait(), Outcome::Signalled);
    QCOMPARE(wait(Short), Outcome::TimedOut);
    QVERIFY(m_channel->isOpen());
    QVERIFY(m_writer->command("post 1"));
    QCOMPARE(wait(), Outcome::Signalled);
    if (IsWindows)
        return;
    // Taking all posts of the largest count would hold the reader for some 20 s.
    QVERIFY(m_writer->command("overfill-event"));
    QCOMPARE(wait(), Outcome::Signalled);
    QCOMPARE(wait(), Outcome::Signalled);
}

void tst_FrameChannel::copiesOnlyFromTheView()
{
    QVERIFY(m_writer->command(mappingCommand(ViewSize + 100)) && m_writer->command("event"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);
    QVERIFY(m_writer->command("fill 65"));

    std::vector<char> copy(ViewSize + 100);
    QVERIFY(m_channel->copyOut(0, copy.data(), ViewSize));
    QCOMPARE(std::count(copy.begin(), copy.end(), 'A'), std::ptrdiff_t(ViewSize));
    QVERIFY(m_channel->copyOut(ViewSize - 1, copy.data(), 1));
    QVERIFY(m_channel->copyOut(ViewSize, copy.data(), 0));

    QVERIFY(!m_channel->copyOut(0, copy.data(), ViewSize + 1));
    QVERIFY(!m_channel->copyOut(ViewSize - 1, copy.data(), 2));
    QVERIFY(!m_channel->copyOut(std::numeric_limits<std::size_t>::max(), copy.data(), 2));
    m_channel->close();
    QVERIFY(!m_channel->copyOut(0, copy.data(), 1));
}

void tst_FrameChannel::noticesRenewedObjects_data()
{
    QTest::addColumn<bool>("newMapping");
    QTest::addColumn<bool>("newEvent");
    QTest::addColumn<bool>("announces"); // through an event that stays
    QTest::newRow("both") << true << true << false;
    QTest::newRow("mapping") << true << false << false;
    QTest::newRow("mapping, frames announced") << true << false << true;
    QTest::newRow("event") << false << true << false;
}

void tst_FrameChannel::noticesRenewedObjects()
{
    if (IsWindows)
        QSKIP("Names outlive their writer on Windows.");
    QFETCH(bool, newMapping);
    QFETCH(bool, newEvent);
    QFETCH(bool, announces);
    QVERIFY(openAll() && m_writer->command("fill 65"));

    if (newMapping)
        QVERIFY(m_writer->command(mappingCommand(ViewSize)) && m_writer->command("fill 66"));
    if (newEvent)
        QVERIFY(m_writer->command("event"));
    const QDeadlineTimer deadline(Long);
    do {
        QVERIFY(!announces || m_writer->command("post 1"));
        QCOMPARE(wait(Short), announces ? Outcome::Signalled : Outcome::TimedOut);
    } while (announces && m_channel->isOpen() && !deadline.hasExpired());
    QVERIFY(!m_channel->isOpen());

    QCOMPARE(m_channel->open().failedAt, Step::Done);
    QVERIFY(m_writer->command("post 1"));
    QCOMPARE(wait(), Outcome::Signalled);
    char byte = 0;
    QVERIFY(m_channel->copyOut(ViewSize - 1, &byte, 1));
    QCOMPARE(byte, newMapping ? 'B' : 'A');
}

void tst_FrameChannel::keepsTheObjectsOfADeadWriter()
{
    if (IsWindows)
        QSKIP("Names outlive their writer on Windows.");
    QVERIFY(openAll());
    m_writer->closeWriteChannel();
    QVERIFY(m_writer->waitForFinished()); // it has removed both names

    QCOMPARE(wait(Short), Outcome::TimedOut);
    QVERIFY(m_channel->isOpen());
    char byte = 1;
    QVERIFY(m_channel->copyOut(0, &byte, 1));
}

void tst_FrameChannel::survivesTruncatedMemory()
{
    if (IsWindows)
        QSKIP("Windows cannot truncate shared memory.");
    QVERIFY(openAll());
    std::vector<char> copy(ViewSize);
    for (int i = 0; i < 3; ++i) { // each time, since a signal handler could work only once
        QVERIFY(m_writer->command("resize 4096"));
        QVERIFY(!m_channel->copyOut(0, copy.data(), copy.size()));
        QVERIFY(m_channel->copyOut(0, copy.data(), 4096));
        QVERIFY(m_writer->command("resize " + QByteArray::number(qulonglong(ViewSize))));
        QVERIFY(m_channel->copyOut(0, copy.data(), copy.size()));
    }

    // While it is copied.
    m_writer->write("flap 20000\n");
    m_writer->waitForBytesWritten();
    while (m_writer->bytesAvailable() == 0) {
        [[maybe_unused]] const bool isWhole = m_channel->copyOut(0, copy.data(), copy.size());
        m_writer->waitForReadyRead(0);
    }
    QCOMPARE(m_writer->nextLine(), "ok");
    QVERIFY(m_channel->copyOut(0, copy.data(), copy.size()));
}

void tst_FrameChannel::refusesReservedMemory()
{
    if (!IsWindows)
        QSKIP("Linux has no memory that is only reserved.");
    QVERIFY(m_writer->command("reserve " + QByteArray::number(qulonglong(ViewSize))));
    const auto result = m_channel->open();
    QCOMPARE(result.failedAt, Step::View);
    QCOMPARE(result.error, quint32(487)); // ERROR_INVALID_ADDRESS
}

void tst_FrameChannel::interruptEndsTheNextWait()
{
    m_channel->interrupt();
    QCOMPARE(wait(), Outcome::Interrupted);
    QCOMPARE(wait(), Outcome::Failed); // not open

    QVERIFY(openAll());
    m_channel->interrupt();
    m_channel->interrupt();
    QVERIFY(m_writer->command("post 1"));
    QCOMPARE(wait(), Outcome::Interrupted);
    QCOMPARE(wait(), Outcome::Signalled); // the frame is not lost
    QCOMPARE(wait(Short), Outcome::TimedOut);

    // A channel that is closed leaves no interruption to the next reader.
    m_channel->interrupt();
    m_channel->close();
    const auto other =
        platform::makeFrameChannel(m_mapping.toStdString(), m_event.toStdString(), ViewSize);
    QCOMPARE(other->open().failedAt, Step::Done);
    QCOMPARE(other->wait(Short).outcome, Outcome::TimedOut);
}

QTEST_GUILESS_MAIN(tst_FrameChannel)
#include "tst_FrameChannel.moc"
