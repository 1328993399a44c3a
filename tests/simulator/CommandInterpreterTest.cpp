#include "simulator/script/CommandInterpreter.h"
#include "simulator/Simulator.h"
#include "simulator/script/MessagePattern.h"
#include "tests/simulator/ChannelRig.h"

#include <QJsonArray>
#include <QTest>

#include <sstream>

using namespace Qt::StringLiterals;
using namespace simulator;

/// The grammar: what is refused, and what the message says.
class CommandInterpreterTest : public QObject
{
    Q_OBJECT

private slots:
    void refuses_data();
    void refuses();
    void accepts_data();
    void accepts();
    void takesWordsApart();
    void matchesPatterns_data();
    void matchesPatterns();
    void namesEveryMistakeOfAScenario();

private:
    // What the simulator says to a command on standard input.
    static QString complaintAbout(const QString& command);
};

QString CommandInterpreterTest::complaintAbout(const QString& command)
{
    std::ostringstream events;
    std::ostringstream errors;
    Simulator simulator(SocketFolder().name(), events, errors);
    simulator.enterCommand(command);
    return QString::fromStdString(errors.str()).trimmed();
}

void CommandInterpreterTest::refuses_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("complaint");
    const auto row = [](const QString& command, const QString& complaint) {
        QTest::newRow(qPrintable(command)) << command << u"stdin:1: "_s + complaint;
    };
    row(u"dance"_s, u"there is no command \"dance\" (see --help)"_s);
    row(u"devices  tree x"_s, u"there is no command \"devices tree\" (see --help)"_s);
    row(u"volume"_s, u"volume: the volume is missing (usage: volume <0..100>)"_s);
    row(u"volume 101"_s, u"volume: the volume must be a whole number from 0 to 100, not \"101\" "
                         "(usage: volume <0..100>)"_s);
    row(u"volume 5 6"_s, u"volume: \"6\" is one argument too many (usage: volume <0..100>)"_s);
    row(u"camera maybe"_s, u"camera: must be off or on, not \"maybe\" (usage: camera on|off)"_s);
    row(u"disconnect now"_s, u"disconnect: \"now\" is one argument too many (usage: disconnect)"_s);
    row(u"wait soon"_s, u"wait: the time must be a number of seconds from 0 to 3600, not \"soon\" "
                        "(usage: wait <seconds>)"_s);
    row(u"wait nan"_s, u"wait: the time must be a number of seconds from 0 to 3600, not \"nan\" "
                       "(usage: wait <seconds>)"_s);
    row(u"expect 1 =4"_s, u"expect: \"=4\" names no key (usage: expect <id> [<condition> ...] "
                          "[within <seconds>])"_s);
    row(u"expect 1 within"_s, u"expect: the time is missing (usage: expect <id> [<condition> ...] "
                              "[within <seconds>])"_s);
    row(u"raw \\q"_s, u"raw: there is no such escape (\\n, \\r, \\t, \\\\, \\xHH) (usage: raw "
                      "<bytes>)"_s);
}

void CommandInterpreterTest::refuses()
{
    QFETCH(QString, command);
    QTEST(complaintAbout(command), "complaint");
}

void CommandInterpreterTest::accepts_data()
{
    QTest::addColumn<QString>("command");
    for (const char* command :
         {"", "   ", "# volume x", "  volume   7  ", "connect first-run", "expect 1", "expect -1 a",
          "expect 6 a=1 b!=\"x y\" c within 0.5", "send 1 {\"a\": # no comment", "wait 0",
          "raw \\x00\\\\\\n", "malformed deep 3", "quit"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void CommandInterpreterTest::accepts()
{
    QFETCH(QString, command);
    QCOMPARE(complaintAbout(command), QString());
}

void CommandInterpreterTest::takesWordsApart()
{
    CommandArguments arguments(u"  one \"two \\\" words\"=x\t-3 1.25 all  the rest "_s);
    QCOMPARE(arguments.peek(), u"one");
    QCOMPARE(arguments.word({}), u"one");
    QCOMPARE(arguments.word({}), u"\"two \\\" words\"=x");
    QCOMPARE(arguments.integer({}, -5, 5), -3);
    QCOMPARE(arguments.seconds({}), std::chrono::milliseconds(1250));
    QCOMPARE(arguments.rest({}), u"all  the rest");
    QVERIFY(arguments.atEnd());
    QVERIFY(arguments.error().isEmpty());
    QCOMPARE(unquoted(u"\"two \\\" words\""_s), u"two \" words");
    QCOMPARE(unquoted(u"a\"b"_s), u"a\"b");
    QCOMPARE(unquoted(u"12"_s), u"12");
    // The first mistake is the one that is told.
    arguments.word(u"more"_s);
    arguments.integer(u"a number"_s, 0, 1);
    QCOMPARE(arguments.error(), u"more is missing");
}

void CommandInterpreterTest::matchesPatterns_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("matches");
    QTest::newRow("id") << u"1"_s << true;
    QTest::newRow("other id") << u"2"_s << false;
    QTest::newRow("number") << u"1 volume=40"_s << true;
    QTest::newRow("number, not text") << u"1 volume=\"40\""_s << false;
    QTest::newRow("plain text") << u"1 ver=4.1.0"_s << true;
    QTest::newRow("quoted text") << u"1 name=\"a b\""_s << true;
    QTest::newRow("list") << u"1 list=[1,2]"_s << true;
    QTest::newRow("presence") << u"1 volume ver"_s << true;
    QTest::newRow("absence") << u"1 volume nothing"_s << false;
    QTest::newRow("another value") << u"1 volume!=50"_s << true;
    QTest::newRow("the same value") << u"1 volume!=40"_s << false;
    QTest::newRow("absent is not another value") << u"1 nothing!=1"_s << false;
    QTest::newRow("all must hold") << u"1 volume=40 ver=4.2"_s << false;
}

void CommandInterpreterTest::matchesPatterns()
{
    QFETCH(QString, pattern);
    CommandArguments arguments(pattern);
    const MessagePattern parsed = MessagePattern::parse(arguments);
    QCOMPARE(arguments.error(), QString());
    const QJsonObject message{{u"volume"_s, 40},
                              {u"ver"_s, u"4.1.0"_s},
                              {u"name"_s, u"a b"_s},
                              {u"on"_s, true},
                              {u"list"_s, QJsonArray{1, 2}}};
    QTEST(parsed.matches(1, message), "matches");
}

void CommandInterpreterTest::namesEveryMistakeOfAScenario()
{
    const QTemporaryDir folder;
    const QString path =
        writeScenario(folder, "# fine\nconnect\nvolume loud\n\nnonsense\r\nquit 0\n");
    std::ostringstream events;
    std::ostringstream errors;
    Simulator simulator(folder.filePath(u"hub"_s), events, errors);
    QVERIFY(!simulator.loadScenario(path));
    QVERIFY(QString::fromStdString(errors.str()).contains("story:3: volume: "_L1));
    QVERIFY(QString::fromStdString(errors.str()).contains("story:5: there is no"_L1));
    QCoreApplication::processEvents();
    QCOMPARE(events.str(), std::string()); // nothing of it ran

    errors.str({});
    QVERIFY(!simulator.loadScenario(folder.filePath(u"missing"_s)));
    QVERIFY(QString::fromStdString(errors.str()).startsWith("cannot read the scenario"_L1));
}

QTEST_GUILESS_MAIN(CommandInterpreterTest)
#include "CommandInterpreterTest.moc"
