#include "simulator/Simulator.h"
#include "simulator/script/CommandInterpreter.h"
#include "simulator/script/MessagePattern.h"
#include "tests/simulator/ChannelRig.h"

#include <QJsonArray>
#include <QTest>

#include <sstream>

using namespace Qt::StringLiterals;
using namespace simulator;

/// The grammar of commands, conditions and scenarios.
class tst_CommandInterpreter : public QObject
{
    Q_OBJECT

private slots:
    void commandsAreChecked_data();
    void commandsAreChecked();
    void patternsAreMatched();
    void everyErrorOfAScenarioIsReported();

private:
    // The error message for a command on standard input. Empty for a valid command.
    static QString errorOf(const QString& command);
};

QString tst_CommandInterpreter::errorOf(const QString& command)
{
    std::ostringstream events;
    std::ostringstream errors;
    Simulator simulator(SocketFolder().name(), events, errors);
    simulator.enterCommand(command);
    return QString::fromStdString(errors.str()).trimmed();
}

void tst_CommandInterpreter::commandsAreChecked_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("error");
    const auto row = [](const QString& command, const QString& error) {
        QTest::newRow(qPrintable(command)) << command << u"stdin:1: "_s + error;
    };
    row(u"devices  tree x"_s, u"there is no command \"devices tree\" (see --help)"_s);
    row(u"volume"_s, u"volume: the volume is missing (usage: volume <0..100>)"_s);
    row(u"volume 101"_s, u"volume: the volume must be a whole number from 0 to 100, not \"101\" "
                         "(usage: volume <0..100>)"_s);
    row(u"camera maybe"_s, u"camera: must be off or on, not \"maybe\" (usage: camera on|off)"_s);
    row(u"disconnect now"_s, u"disconnect: \"now\" is one argument too many (usage: disconnect)"_s);
    row(u"wait nan"_s, u"wait: the time must be a number of seconds from 0 to 3600, not \"nan\" "
                       "(usage: wait <seconds>)"_s);
    row(u"expect 1 =4"_s, u"expect: \"=4\" names no key (usage: expect <id> [<condition> ...] "
                          "[within <seconds>])"_s);
    row(u"raw \\q"_s, u"raw: there is no such escape (\\n, \\r, \\t, \\\\, \\xHH) (usage: raw "
                      "<bytes>)"_s);
    for (const char* command :
         {"# volume x", "  volume   7  ", "expect 6 a=1 b!=\"x y\" c within 0.5",
          "send 1 {\"a\": # no comment", "raw \\x00\\\\\\n"})
        QTest::newRow(command) << QString::fromLatin1(command) << QString();
}

void tst_CommandInterpreter::commandsAreChecked()
{
    QFETCH(QString, command);
    QTEST(errorOf(command), "error");
}

void tst_CommandInterpreter::patternsAreMatched()
{
    const QJsonObject message{
        {u"volume"_s, 40}, {u"ver"_s, u"4.1.0"_s}, {u"list"_s, QJsonArray{1, 2}}};
    const auto matches = [&](const QString& pattern) {
        CommandArguments arguments(pattern);
        return MessagePattern::parse(arguments).matches(1, message);
    };
    for (const QString& pattern : {u"1"_s, u"1 volume=40"_s, u"1 ver=4.1.0"_s, u"1 ver=\"4.1.0\""_s,
                                   u"1 list=[1,2]"_s, u"1 volume ver"_s, u"1 volume!=50"_s})
        QVERIFY2(matches(pattern), qPrintable(pattern));
    for (const QString& pattern : {u"2"_s, u"1 volume=\"40\""_s, u"1 volume nothing"_s,
                                   u"1 volume!=40"_s, u"1 nothing!=1"_s, u"1 volume=40 ver=4.2"_s})
        QVERIFY2(!matches(pattern), qPrintable(pattern));
}

void tst_CommandInterpreter::everyErrorOfAScenarioIsReported()
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
    QCOMPARE(events.str(), std::string()); // no line has run

    errors.str({});
    QVERIFY(!simulator.loadScenario(folder.filePath(u"missing"_s)));
    QVERIFY(QString::fromStdString(errors.str()).startsWith("cannot read the scenario"_L1));
}

QTEST_GUILESS_MAIN(tst_CommandInterpreter)
#include "tst_CommandInterpreter.moc"
