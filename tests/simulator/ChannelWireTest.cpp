#include "portalhub/LineReader.h"
#include "portalhub/MessageLine.h"
#include "portalhub/OutgoingQueue.h"

#include <QRandomGenerator>
#include <QTest>

using namespace channel;
using namespace Qt::StringLiterals;

class ChannelWireTest : public QObject
{
    Q_OBJECT

private slots:
    void parsesLines_data();
    void parsesLines();
    void keepsEncodedTextOnOneLine();
    void cutsLinesWhereverTheBytesBreak();
    void skipsOverlongLinesWithoutKeepingThem();
    void queueIsBoundedByWhatTheSocketHolds();
};

void ChannelWireTest::parsesLines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<int>("id");
    QTest::addColumn<QByteArray>("text");
    const auto good = [](const char* name, const QByteArray& line, int id, const QByteArray& text) {
        QTest::newRow(name) << line << true << id << text;
    };
    const auto bad = [](const char* name, const QByteArray& line) {
        QTest::newRow(name) << line << false << 0 << QByteArray();
    };
    good("message", "11 {\"cmd\":11}", 11, "{\"cmd\":11}");
    good("negative id", "-5 x", -5, "x");
    good("no text", "1 ", 1, "");
    good("only the first blank counts", "1  x y", 1, " x y");
    good("bytes that are no text", QByteArray("1 \xff\0z", 5), 1, QByteArray("\xff\0z", 3));
    bad("empty", "");
    bad("blank", " ");
    bad("id only", "12");
    bad("no id", "{\"cmd\":1}");
    bad("blank before the id", " 1 x");
    bad("no blank", "1{}");
    bad("tab", "1\tx");
    bad("plus", "+1 x");
    bad("fraction", "1.5 x");
    bad("hexadecimal", "0x10 x");
    bad("above int", "2147483648 x");
    bad("far above int", "99999999999999999999999 x");
}

void ChannelWireTest::parsesLines()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, valid);
    const auto message = parseLine(line);
    QCOMPARE(message.has_value(), valid);
    if (valid) {
        QTEST(message->id, "id");
        QTEST(message->text, "text");
    }
}

void ChannelWireTest::keepsEncodedTextOnOneLine()
{
    QCOMPARE(encodeLine(7, "{\n  \"a\": 1\r\n}"), "7 {   \"a\": 1  }\n");
    QCOMPARE(encodeLine(-1, ""), "-1 \n");
}

void ChannelWireTest::cutsLinesWhereverTheBytesBreak()
{
    QByteArray stream;
    QList<QByteArray> lines;
    for (int i = 0; i < 500; ++i) {
        lines.append(QByteArray(i % 40, 'x'));
        stream += lines.last() + '\n';
    }
    QRandomGenerator random(1);
    for (int round = 0; round < 20; ++round) {
        LineReader reader(40);
        QList<QByteArray> read;
        for (qsizetype at = 0; at < stream.size();) {
            const qsizetype size = std::min<qsizetype>(random.bounded(1, 200), stream.size() - at);
            reader.append(QByteArrayView(stream).sliced(at, size));
            at += size;
            while (const auto line = reader.next())
                read.append(*line);
        }
        QCOMPARE(read, lines);
        QCOMPARE(reader.skipped(), 0);
    }
}

void ChannelWireTest::skipsOverlongLinesWithoutKeepingThem()
{
    LineReader reader(10);
    reader.append("0123456789\n01234567890\nok\n01234567890"); // the last one is not ended yet
    QCOMPARE(reader.next(), "0123456789");
    QCOMPARE(reader.next(), "ok");
    QVERIFY(!reader.next());
    for (int i = 0; i < 1000; ++i) {
        reader.append("0123456789");
        QVERIFY(!reader.next());
    }
    reader.append("\nfine\nhal");
    QCOMPARE(reader.next(), "fine");
    QVERIFY(!reader.next());
    QCOMPARE(reader.skipped(), 2);
    reader.reset();
    reader.append("new\n");
    QCOMPARE(reader.next(), "new");
}

void ChannelWireTest::queueIsBoundedByWhatTheSocketHolds()
{
    using Result = OutgoingQueue::Result;
    OutgoingQueue queue(10);
    QCOMPARE(queue.push("x"), Result::Closed);
    queue.open();
    QCOMPARE(queue.push("1234"), Result::FirstWaiting);
    QCOMPARE(queue.push("5678"), Result::Accepted);
    QCOMPARE(queue.push("9ab"), Result::Full);
    QCOMPARE(queue.take(), "12345678");
    QCOMPARE(queue.push("9ab"), Result::Full); // not written yet
    queue.setUnwritten(5);
    QCOMPARE(queue.push("9ab"), Result::FirstWaiting);
    queue.close();
    QCOMPARE(queue.take(), QByteArray());
    queue.open();
    QCOMPARE(queue.push("0123456789"), Result::FirstWaiting);
}

QTEST_GUILESS_MAIN(ChannelWireTest)
#include "ChannelWireTest.moc"
