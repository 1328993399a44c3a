#include "device/CameraReports.h"
#include "device/DealChannelMsg.h"
#include "device/DisplayReports.h"
#include "support/LogCapture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

/// Writes each report down as text.
class Reports : public DisplayReports, public CameraReports
{
public:
    void setConnectMode(ConnectMode mode) override { add("mode", int(mode)); }
    void setVolume(int volume, Direction from) override { add("volume", volume, from); }
    void setByodSwitch(SourceState state, Direction from) override
    {
        add("byod", int(state), from);
    }
    void setZoomSwitch(SourceState state, Direction from) override
    {
        add("zoom", int(state), from);
    }
    void setRemoteVer(const QString& version) override { seen += "version " + version.toUtf8(); }
    void setVolumeReady(int ready) override { add("volumeReady", ready); }
    void setShareStatusReady(int ready) override { add("shareReady", ready); }
    void setRemoteVerReady(int ready) override { add("versionReady", ready); }
    void setAutoFraming(bool on, Direction from) override { add("auto", on, from); }
    void setSmartFraming(bool on, Direction from) override { add("smart", on, from); }
    void setCameraSwitch(int sw) override { add("camera", sw); }

    QByteArrayList seen;

private:
    void add(const QByteArray& what, int value, Direction from = Direction::FromDisplay)
    {
        seen += what + ' ' + QByteArray::number(value);
        if (from != Direction::FromDisplay)
            seen += "from this program";
    }
};

} // namespace

class tst_DealChannelMsg : public QObject
{
    Q_OBJECT

private slots:
    void numbersMessagesFromOne();
    void reportsAndReplies_data();
    void reportsAndReplies();
    void refusesTextThatIsNoObject_data();
    void refusesTextThatIsNoObject();

private:
    Reports m_reports;
    const DealChannelMsg m_parser{m_reports, m_reports};
};

// First in the file: the sequence is common to the process.
void tst_DealChannelMsg::numbersMessagesFromOne()
{
    QCOMPARE(DealChannelMsg::buildQuery(ChannelCommand::FirmwareVersion).text,
             std::string(R"({"cmd":11,"seq":1,"type":0})"));
    QCOMPARE(DealChannelMsg::buildVolume(40).text,
             std::string(R"({"cmd":1,"seq":2,"type":2,"volume":40})"));
}

void tst_DealChannelMsg::reportsAndReplies_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArray>("reports"); // separated by commas
    QTest::addColumn<QByteArray>("reply");

    const auto row = [](const char* name, const char* message, const char* reports,
                        const char* reply = "") {
        QTest::newRow(name) << QByteArray(message) << QByteArray(reports) << QByteArray(reply);
    };
    row("mode", R"({"cmd":0,"type":1,"isReady":2})", "mode 2");
    row("no cmd", R"({"type":1,"isReady":1})", "mode 1");
    row("no type is a query", R"({"cmd":5})", "", R"({"cmd":5,"type":1})");
    row("query, echoed", R"({"cmd":5,"seq":9,"type":0,"x":[1,{"y":null}]})", "",
        R"({"cmd":5,"seq":9,"type":1,"x":[1,{"y":null}]})");
    row("report, echoed as received", R"({"cmd":1,"type":2,"volume":150})",
        "volumeReady 1,volume 100", R"({"cmd":1,"type":3,"volume":150})");
    row("volume below", R"({"cmd":1,"type":1,"volume":-1})", "volumeReady 1,volume 0");
    row("byod wins", R"({"cmd":6,"type":1,"byod_status":2,"zoom_status":2})",
        "shareReady 1,byod 2,zoom 0");
    row("zoom selected", R"({"cmd":6,"type":1,"byod_status":1,"zoom_status":2})",
        "shareReady 1,byod 0,zoom 2");
    row("picker hidden", R"({"cmd":6,"type":1,"byod_status":1,"zoom_status":1})",
        "shareReady 1,byod 0,zoom 0");
    row("picker shown", R"({"cmd":6,"type":1,"byod_status":1,"is_byodui_show":1})",
        "shareReady 1,byod 1,zoom 0");
    row("version", R"({"cmd":11,"type":1,"ota_ver":"4.1.0"})", "versionReady 1,version 4.1.0");
    row("auto framing", R"({"cmd":13,"type":1,"autoframestatus":7})", "auto 1");
    row("smart framing", R"({"cmd":15,"type":1,"smartframestatus":1})", "smart 1");
    row("camera", R"({"cmd":21,"type":1,"camerastatus":3})", "camera 3");
    // A value of the wrong type changes nothing; the reply is sent all the same.
    row("text as cmd", R"({"cmd":"1","type":2})", "", R"({"cmd":"1","type":3})");
    row("fraction as cmd", R"({"cmd":0.5,"type":1,"isReady":1})", "");
    row("mode beyond int", R"({"cmd":0,"type":1,"isReady":3000000000})", "");
    row("text as mode", R"({"cmd":0,"type":1,"isReady":"1"})", "");
    row("text as volume", R"({"cmd":1,"type":1,"volume":"9"})", "volumeReady 1");
    row("null as source", R"({"cmd":6,"type":1,"byod_status":2,"zoom_status":null})",
        "shareReady 1");
    row("number as version", R"({"cmd":11,"type":1,"ota_ver":4})", "versionReady 1");
    row("flag as framing", R"({"cmd":13,"type":1,"autoframestatus":true})", "");
    // A number that is no volume counts as the nearest volume.
    row("volume beyond int", R"({"cmd":1,"type":1,"volume":1e300})", "volumeReady 1,volume 100");
    row("fraction of a volume", R"({"cmd":1,"type":1,"volume":40.6})", "volumeReady 1,volume 41");
    row("acknowledgement", R"({"cmd":1,"type":3,"volume":40})", "");
    row("unknown type", R"({"cmd":99,"type":-4})", "");
    row("message of this program", R"({"cmd":9,"type":1,"byod_status":2})", "");
}

void tst_DealChannelMsg::reportsAndReplies()
{
    QFETCH(const QByteArray, message);
    m_reports.seen.clear();
    const auto reply = m_parser.PraseJson(message.toStdString());
    QTEST(m_reports.seen.join(','), "reports");
    QTEST(QByteArray::fromStdString(reply.value_or("")), "reply");
}

void tst_DealChannelMsg::refusesTextThatIsNoObject_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QString>("complaint");

    const QString invalid = u"JSON document is null or invalid format."_s;
    QTest::newRow("empty") << QByteArray() << invalid;
    QTest::newRow("truncated") << QByteArray(R"({"cmd":1,"vol)") << invalid;
    QTest::newRow("invalid UTF-8") << QByteArray("{\"cmd\":1,\"x\":\"\xff\xfe\"}") << invalid;
    QTest::newRow("nested too deep") << QByteArray(200000, '[') << invalid;
    QTest::newRow("array") << QByteArray("[1,2]") << u"Root element is not an object."_s;
}

void tst_DealChannelMsg::refusesTextThatIsNoObject()
{
    QFETCH(const QByteArray, message);
    QFETCH(const QString, complaint);
    m_reports.seen.clear();
    LogCapture log;
    QVERIFY(!m_parser.PraseJson(message.toStdString()));
    QVERIFY(m_reports.seen.isEmpty());
    QCOMPARE(log.take(),
             QStringList{u"E DealChannelMsg::PraseJson Failed to parse JSON: "_s + complaint});
}

QTEST_GUILESS_MAIN(tst_DealChannelMsg)
#include "tst_DealChannelMsg.moc"
