#include "platform/FrameChannel.h"
#include "rig/HelperProcess.h"

#include <QTest>

#include <algorithm>
#include <cerrno>
#include <future>
#include <limits>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using platform::FrameChannel;
using Step = FrameChannel::OpenStep;
using Outcome = FrameChannel::WaitOutcome;

namespace
{

constexpr std::size_t kViewSize = 1 << 20;
// What the system answers for a name that is not there, and for a view beyond the end.
constexpr quint32 kNoSuchName = kIsWindows ? 2 : ENOENT;
constexpr quint32 kTooSmall = kIsWindows ? 5 : ENXIO;
constexpr std::chrono::milliseconds kShort{30}; // nothing will come
constexpr std::chrono::seconds kLong{20};       // something will come

} // namespace

class tst_FrameChannel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void opensInThreeSteps();
    void countsPostsMadeMeanwhileAsOne();
    void copiesOnlyFromTheView();
    void findsTheWriterReplaced_data();
    void findsTheWriterReplaced();
    void keepsTheObjectsOfAWriterThatIsGone();
    void survivesMemoryTakenAway();
    void survivesMemoryTakenAwayWhileCopying();
    void refusesMemoryThatIsOnlyReserved();
    void survivesAnEventTakenAway();
    void isInterruptedWhileWaiting();
    void isInterruptedBeforeWaiting();

private:
    bool startWriter(HelperProcess& writer) const;
    static QByteArray mappingCommand(std::size_t size);

    QString m_mapping;
    QString m_event;
    std::unique_ptr<FrameChannel> m_channel;
    std::unique_ptr<HelperProcess> m_writer;
};

QByteArray tst_FrameChannel::mappingCommand(std::size_t size)
{
    return "mapping " + QByteArray::number(static_cast<qulonglong>(size));
}

bool tst_FrameChannel::startWriter(HelperProcess& writer) const
{
    return writer.startAndWait(HelperProcess::path(u"frame_writer"_s), {m_mapping, m_event});
}

void tst_FrameChannel::init()
{
    m_mapping = uniqueName(u"vorn_test_frames_"_s);
    m_event = uniqueName(u"vorn_test_event_"_s);
    m_channel =
        platform::makeFrameChannel(m_mapping.toStdString(), m_event.toStdString(), kViewSize);
    m_writer = std::make_unique<HelperProcess>();
    QVERIFY(startWriter(*m_writer));
}

void tst_FrameChannel::cleanup()
{
    m_channel.reset();
    m_writer.reset();
}

void tst_FrameChannel::opensInThreeSteps()
{
    QCOMPARE(m_channel->wait(kLong).outcome, Outcome::Failed);

    auto result = m_channel->open();
    QCOMPARE(result.failedAt, Step::Mapping);
    QCOMPARE(result.error, kNoSuchName);

    QVERIFY(m_writer->command(mappingCommand(kViewSize / 2)));
    result = m_channel->open();
    QCOMPARE(result.failedAt, Step::View);
    QCOMPARE(result.error, kTooSmall);

    QVERIFY(m_writer->command(mappingCommand(kViewSize)));
    result = m_channel->open();
    QCOMPARE(result.failedAt, Step::Event);
    QCOMPARE(result.error, kNoSuchName);
    QVERIFY(!m_channel->isOpen());

    QVERIFY(m_writer->command("event"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);
    QVERIFY(m_channel->isOpen());
    QCOMPARE(m_channel->size(), kViewSize);
}

void tst_FrameChannel::countsPostsMadeMeanwhileAsOne()
{
    QVERIFY(m_writer->command(mappingCommand(kViewSize)) && m_writer->command("event"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);

    QVERIFY(m_writer->command("post 1000"));
    QCOMPARE(m_channel->wait(kLong).outcome, Outcome::Signalled);
    QCOMPARE(m_channel->wait(kShort).outcome, Outcome::TimedOut);
    QVERIFY(m_channel->isOpen());

    QVERIFY(m_writer->command("post 1"));
    QCOMPARE(m_channel->wait(kLong).outcome, Outcome::Signalled);
}

void tst_FrameChannel::copiesOnlyFromTheView()
{
    QVERIFY(m_writer->command(mappingCommand(kViewSize + 100)) && m_writer->command("event"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);
    QVERIFY(m_writer->command("fill 65"));

    std::vector<char> copy(kViewSize + 100);
    QVERIFY(m_channel->copyOut(0, copy.data(), kViewSize));
    QCOMPARE(std::count(copy.begin(), copy.end(), 'A'), std::ptrdiff_t(kViewSize));
    QVERIFY(m_channel->copyOut(kViewSize - 1, copy.data(), 1));
    QVERIFY(m_channel->copyOut(kViewSize, copy.data(), 0));

    QVERIFY(!m_channel->copyOut(0, copy.data(), kViewSize + 1));
    QVERIFY(!m_channel->copyOut(kViewSize - 1, copy.data(), 2));
    QVERIFY(!m_channel->copyOut(std::numeric_limits<std::size_t>::max(), copy.data(), 2));
    m_channel->close();
    QVERIFY(!m_channel->copyOut(0, copy.data(), 1));
}

void tst_FrameChannel::findsTheWriterReplaced_data()
{
    QTest::addColumn<bool>("newMapping");
    QTest::addColumn<bool>("newEvent");
    QTest::newRow("both") << true << true;
    QTest::newRow("mapping") << true << false;
    QTest::newRow("event") << false << true;
}

void tst_FrameChannel::findsTheWriterReplaced()
{
    if (kIsWindows)
        QSKIP("A name outlives its writer there while it is used.");
    QFETCH(bool, newMapping);
    QFETCH(bool, newEvent);
    QVERIFY(m_writer->command(mappingCommand(kViewSize)) && m_writer->command("event"));
    QVERIFY(m_writer->command("fill 65"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);

    if (newMapping)
        QVERIFY(m_writer->command(mappingCommand(kViewSize)) && m_writer->command("fill 66"));
    if (newEvent)
        QVERIFY(m_writer->command("event"));
    QCOMPARE(m_channel->wait(kShort).outcome, Outcome::TimedOut);
    QVERIFY(!m_channel->isOpen());

    QCOMPARE(m_channel->open().failedAt, Step::Done);
    QVERIFY(m_writer->command("post 1"));
    QCOMPARE(m_channel->wait(kLong).outcome, Outcome::Signalled);
    char byte = 0;
    QVERIFY(m_channel->copyOut(kViewSize - 1, &byte, 1));
    QCOMPARE(byte, newMapping ? 'B' : 'A');
}

void tst_FrameChannel::keepsTheObjectsOfAWriterThatIsGone()
{
    if (kIsWindows)
        QSKIP("A name outlives its writer there while it is used.");
    QVERIFY(m_writer->command(mappingCommand(kViewSize)) && m_writer->command("event"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);
    m_writer->closeWriteChannel();
    QVERIFY(m_writer->waitForFinished()); // it has removed both names

    QCOMPARE(m_channel->wait(kShort).outcome, Outcome::TimedOut);
    QVERIFY(m_channel->isOpen());
    char byte = 1;
    QVERIFY(m_channel->copyOut(0, &byte, 1));

    HelperProcess successor;
    QVERIFY(startWriter(successor));
    QVERIFY(successor.command(mappingCommand(kViewSize)) && successor.command("event"));
    QCOMPARE(m_channel->wait(kShort).outcome, Outcome::TimedOut);
    QVERIFY(!m_channel->isOpen());
}

void tst_FrameChannel::survivesMemoryTakenAway()
{
    if (kIsWindows)
        QSKIP("Memory cannot be cut short there.");
    QVERIFY(m_writer->command(mappingCommand(kViewSize)) && m_writer->command("event"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);
    std::vector<char> copy(kViewSize);
    for (int i = 0; i < 3; ++i) { // the signal must come through each time
        QVERIFY(m_writer->command("resize 4096"));
        QVERIFY(!m_channel->copyOut(0, copy.data(), copy.size()));
        QVERIFY(m_channel->copyOut(0, copy.data(), 4096));
        QVERIFY(m_writer->command("resize " + QByteArray::number(qulonglong(kViewSize))));
        QVERIFY(m_channel->copyOut(0, copy.data(), copy.size()));
    }
}

void tst_FrameChannel::survivesMemoryTakenAwayWhileCopying()
{
    if (kIsWindows)
        QSKIP("Memory cannot be cut short there.");
    QVERIFY(m_writer->command(mappingCommand(kViewSize)) && m_writer->command("event"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);
    m_writer->write("flap 20000\n");
    m_writer->waitForBytesWritten();

    std::vector<char> copy(kViewSize);
    while (m_writer->bytesAvailable() == 0) {
        [[maybe_unused]] const bool whole = m_channel->copyOut(0, copy.data(), copy.size());
        m_writer->waitForReadyRead(0);
    }
    QCOMPARE(m_writer->nextLine(), "ok");
    QVERIFY(m_channel->copyOut(0, copy.data(), copy.size()));
}

void tst_FrameChannel::refusesMemoryThatIsOnlyReserved()
{
    if (!kIsWindows)
        QSKIP("Shared memory is all there when it is mapped.");
    QVERIFY(m_writer->command("reserve " + QByteArray::number(qulonglong(kViewSize))));
    const auto result = m_channel->open();
    QCOMPARE(result.failedAt, Step::View);
    QCOMPARE(result.error, quint32(487)); // ERROR_INVALID_ADDRESS
}

void tst_FrameChannel::survivesAnEventTakenAway()
{
    if (kIsWindows)
        QSKIP("An event cannot be taken away there.");
    QVERIFY(m_writer->command(mappingCommand(kViewSize)) && m_writer->command("event"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);
    QVERIFY(m_writer->command("cut-event"));
    m_channel->interrupt();
    QCOMPARE(m_channel->wait(kLong).outcome, Outcome::Interrupted);
    QCOMPARE(m_channel->wait(kLong).outcome, Outcome::Failed);
    QVERIFY(!m_channel->isOpen());
}

void tst_FrameChannel::isInterruptedWhileWaiting()
{
    QVERIFY(m_writer->command(mappingCommand(kViewSize)) && m_writer->command("event"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);

    for (int i = 0; i < 200; ++i) {
        auto outcome =
            std::async(std::launch::async, [this] { return m_channel->wait(kLong).outcome; });
        m_channel->interrupt();
        QCOMPARE(outcome.get(), Outcome::Interrupted);
    }
    // The interruptions have left nothing behind that looks like a frame.
    QCOMPARE(m_channel->wait(kShort).outcome, Outcome::TimedOut);
}

void tst_FrameChannel::isInterruptedBeforeWaiting()
{
    m_channel->interrupt();
    QCOMPARE(m_channel->wait(kLong).outcome, Outcome::Interrupted);
    QCOMPARE(m_channel->wait(kLong).outcome, Outcome::Failed); // not open

    QVERIFY(m_writer->command(mappingCommand(kViewSize)) && m_writer->command("event"));
    QCOMPARE(m_channel->open().failedAt, Step::Done);
    m_channel->interrupt();
    m_channel->interrupt();
    QVERIFY(m_writer->command("post 1"));
    QCOMPARE(m_channel->wait(kLong).outcome, Outcome::Interrupted);
    QCOMPARE(m_channel->wait(kLong).outcome, Outcome::Signalled); // the frame is not lost
    QCOMPARE(m_channel->wait(kShort).outcome, Outcome::TimedOut);

    // Nor does a closed channel leave its interruption to the next reader.
    m_channel->interrupt();
    m_channel->close();
    const auto other =
        platform::makeFrameChannel(m_mapping.toStdString(), m_event.toStdString(), kViewSize);
    QCOMPARE(other->open().failedAt, Step::Done);
    QCOMPARE(other->wait(kShort).outcome, Outcome::TimedOut);
}

QTEST_GUILESS_MAIN(tst_FrameChannel)
#include "tst_FrameChannel.moc"
