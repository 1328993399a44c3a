#include "portalhub/ChannelClient.h"
#include "simulator/Simulator.h"
#include "tests/simulator/ChannelRig.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

#include <sstream>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using channel::ChannelClient;
using simulator::Simulator;

namespace
{

/// Plays the program: acknowledges reports, asks for the version when a display connects, and sets
/// the volume when it receives the version.
class Program
{
public:
    explicit Program(const QString& socketName)
        : m_client(socketName, 5ms)
    {
        m_client.initChannel([this](int id, const std::string& text) { return take(id, text); });
    }
    ~Program() { m_client.stop(); }

    void push(int id, const std::string& text) { m_client.pushMsg(id, text); }

private:
    int take(int id, const std::string& text)
    {
        QJsonObject message = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
        const int type = message.value("type"_L1).toInt();
        if (type == 2) {
            message.insert("type"_L1, 3);
            push(id, QJsonDocument(message).toJson(QJsonDocument::Compact).toStdString());
        }
        if (id == 0)
            push(11, R"({"cmd":11,"seq":1,"type":0})");
        if (id == 11 && type == 1)
            push(1, R"({"cmd":1,"seq":2,"type":2,"volume":55})");
        return 0;
    }

    ChannelClient m_client;
};

} // namespace

/// Scenarios from their start to their exit code.
class tst_Scenario : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void shippedScenariosRun();
    void scenarioEndsWithItsExitCode_data();
    void scenarioEndsWithItsExitCode();

private:
    void run(const QByteArray& scenario);
    int exitCode();
    QList<QJsonObject> events(const QString& name) const { return eventsNamed(name, m_events); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::ostringstream m_events;
    std::ostringstream m_errors;
    std::unique_ptr<Simulator> m_simulator;
    std::unique_ptr<QSignalSpy> m_finished;
};

void tst_Scenario::init()
{
    m_simulator.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_events.str({});
    m_errors.str({});
    m_simulator = std::make_unique<Simulator>(m_folder->filePath(u"hub"_s), m_events, m_errors);
    m_finished = std::make_unique<QSignalSpy>(m_simulator.get(), &Simulator::finished);
    QVERIFY(m_simulator->listen());
}

void tst_Scenario::run(const QByteArray& scenario)
{
    QVERIFY2(m_simulator->loadScenario(writeScenario(*m_folder, scenario)), m_errors.str().c_str());
}

int tst_Scenario::exitCode()
{
    if (!QTest::qWaitFor([this] { return !m_finished->isEmpty(); }, Patience))
        return -1;
    return m_finished->first().first().toInt();
}

void tst_Scenario::shippedScenariosRun()
{
    QVERIFY(m_simulator->loadScenario(QStringLiteral(SCENARIOS "/first-contact.scenario")));
    const Program program(m_folder->filePath(u"hub"_s));
    QCOMPARE(exitCode(), 0);
    for (const auto* name : {"desk", "first-run"})
        QVERIFY(m_simulator->loadScenario(
            QStringLiteral(SCENARIOS "/%1.scenario").arg(QLatin1String(name))));
    QCOMPARE(m_errors.str(), std::string());
}

void tst_Scenario::scenarioEndsWithItsExitCode_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("error");
    const auto row = [](const char* name, const QByteArray& scenario, int code,
                        const QByteArray& error = {}) {
        QTest::newRow(name) << "wait-client\nconnect\n" + scenario << code << error;
    };
    row("quits with a code", "expect 1 type=3 volume=40\nquit 7", 7);
    row("no such message", "expect 1 type=3 volume=41 within 0.05\nquit 0", 1,
        "story:3: expect 1 type=3 volume=41 within 0.05: no such message within 0.05 s\n");
    row("each message counts once", "expect 0 type=3\nexpect 0 type=3 within 0.05\nquit 0", 1,
        "story:4: expect 0 type=3 within 0.05: no such message within 0.05 s\n");
    row("forgets", "expect 6 type=3\nexpect 1 type=2\nforget\nexpect 0 within 0.05\nquit 0", 1,
        "story:6: expect 0 within 0.05: no such message within 0.05 s\n");
    row("none came", "expect-none 9 within 0.05\nquit", 0);
    row("one came", "expect-none 11 within 5\nquit 0", 1,
        "story:3: expect-none 11 within 5: such a message came\n");
    row("was sent", "expect-sent 11 type=1 ota_ver=4.1.0\nquit", 0);
    row("survives its own faults",
        "malformed endless\nmalformed no-id 100\nraw \\xff\\x00\ndrop-client\nwait-client\n"
        "forget\nvolume 12\nexpect 1 type=3 volume=12\nquit",
        0);
    row("comes back", "link down\nlink up\nwait-client\nforget\nvolume 3\nexpect 1 volume=3\nquit",
        0);
    row("the program waits meanwhile",
        "expect 1 type=2\nforget\nreading off\nvolume 5\nexpect-none 1 within 0.05\n"
        "reading on\nexpect 1 type=3 volume=5\nquit",
        0);
}

void tst_Scenario::scenarioEndsWithItsExitCode()
{
    QFETCH(QByteArray, scenario);
    run(scenario);
    const Program program(m_folder->filePath(u"hub"_s));
    QTEST(exitCode(), "code");
    QTEST(QByteArray::fromStdString(m_errors.str()), "error");
}

QTEST_GUILESS_MAIN(tst_Scenario)
#include "tst_Scenario.moc"
