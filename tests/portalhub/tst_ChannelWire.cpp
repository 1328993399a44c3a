#include "portalhub/LineReader.h"
#include "portalhub/MessageLine.h"

#include <QRandomGenerator>
#include <QTest>

using namespace channel;
using namespace Qt::StringLiterals;

/// The wire format and the splitting into lines.
class tst_ChannelWire : public QObject
{
    Q_OBJECT

private slots:
    void linesAreParsed_data();
    void linesAreParsed();
    void encodedTextIsOneLine();
    void linesAreFoundInAnyPiecesOfTheStream();
    void overlongLinesAreSkipped();
};

void tst_ChannelWire::linesAreParsed_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<int>("id");
    QTest::addColumn<QByteArray>("text");
    const auto good = [](const QByteArray& line, int id, const QByteArray& text) {
        QTest::newRow(line.constData()) << line << true << id << text;
    };
    good("11 {\"cmd\":11}", 11, "{\"cmd\":11}");
    good("-5 x", -5, "x");
    good("1 ", 1, "");
    good("1  x y", 1, " x y");
    good(QByteArray("1 \xff\0z", 5), 1, QByteArray("\xff\0z", 3));
    for (const char* line : {"", " ", "12", "{\"cmd\":1}", " 1 x", "1{}", "1\tx", "+1 x", "1.5 x",
                             "0x10 x", "2147483648 x", "99999999999999999999999 x"})
        QTest::newRow(line) << QByteArray(line) << false << 0 << QByteArray();
}

void tst_ChannelWire::linesAreParsed()
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

void tst_ChannelWire::encodedTextIsOneLine()
{
    QCOMPARE(encodeLine(7, "{\n  \"a\": 1\r\n}"), "7 {   \"a\": 1  }\n");
    QCOMPARE(encodeLine(-1, ""), "-1 \n");
}

void tst_ChannelWire::linesAreFoundInAnyPiecesOfTheStream()
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

void tst_ChannelWire::overlongLinesAreSkipped()
{
    LineReader reader(10);
    reader.append("0123456789\n01234567890\nok\n01234567890"); // the last line is not complete
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

QTEST_GUILESS_MAIN(tst_ChannelWire)
#include "tst_ChannelWire.moc"
