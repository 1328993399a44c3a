#include "rig/Fakes.h"
#include "support/LogCapture.h"

#include <QTest>

namespace
{

/// Remembers each report as text.
class Reports : public DisplayReports
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
    void setRemoteVer(const QString& version) override { seen += u"version %1"_s.arg(version); }
    void setVolumeReady(int ready) override { add("volumeReady", ready); }
    void setShareStatusReady(int ready) override { add("shareReady", ready); }
    void setRemoteVerReady(int ready) override { add("versionReady", ready); }

    QStringList seen;

private:
    void add(const char* what, int value, std::optional<Direction> from = {})
    {
        seen += u"%1 %2"_s.arg(QLatin1String(what)).arg(value);
        if (from)
            seen.last() += u" from %1"_s.arg(int(*from));
    }
};

} // namespace

class tst_DealChannelMsg : public QObject
{
    Q_OBJECT

private slots:
    void numbersMessagesFromOne();
    void understands_data();
    void understands();
    void handsCameraReportsOn();
    void repliesByType_data();
    void repliesByType();
    void refusesWhatIsNoObject_data();
    void refusesWhatIsNoObject();
};

// First in the file: the sequence belongs to the process.
void tst_DealChannelMsg::numbersMessagesFromOne()
{
    QCOMPARE(DealChannelMsg::buildQuery(ChannelCommand::FirmwareVersion).text,
             std::string(R"({"cmd":11,"seq":1,"type":0})"));
    QCOMPARE(DealChannelMsg::buildVolume(40).text,
             std::string(R"({"cmd":1,"seq":2,"type":2,"volume":40})"));
}

void tst_DealChannelMsg::understands_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QStringList>("reports");

    const auto row = [](const char* name, const char* message, const QStringList& reports) {
        QTest::newRow(name) << QByteArray(message) << reports;
    };
    const auto source = [](int byod, int zoom) {
        return QStringList{u"shareReady 1"_s, u"byod %1 from 1"_s.arg(byod),
                           u"zoom %1 from 1"_s.arg(zoom)};
    };
    row("mode", R"({"cmd":0,"type":2,"isReady":2})", {u"mode 2"_s});
    row("no cmd", R"({"type":2,"isReady":1})", {u"mode 1"_s});
    row("volume", R"({"cmd":1,"type":2,"volume":40})", {u"volumeReady 1"_s, u"volume 40 from 1"_s});
    row("volume above", R"({"cmd":1,"volume":150})", {u"volumeReady 1"_s, u"volume 100 from 1"_s});
    row("volume below", R"({"cmd":1,"volume":-1})", {u"volumeReady 1"_s, u"volume 0 from 1"_s});
    row("volume of another type", R"({"cmd":1,"volume":"9"})",
        {u"volumeReady 1"_s, u"volume 0 from 1"_s});
    row("volume beyond int", R"({"cmd":1,"volume":1e300})",
        {u"volumeReady 1"_s, u"volume 0 from 1"_s});
    row("byod wins", R"({"cmd":6,"byod_status":2,"zoom_status":2})", source(2, 0));
    row("zoom selected", R"({"cmd":6,"byod_status":1,"zoom_status":2})", source(0, 2));
    row("picker hidden", R"({"cmd":6,"byod_status":1,"zoom_status":1})", source(0, 0));
    row("picker shown", R"({"cmd":6,"byod_status":1,"zoom_status":0,"is_byodui_show":1})",
        source(1, 0));
    row("version", R"({"cmd":11,"type":1,"ota_ver":"4.1.0"})",
        {u"versionReady 1"_s, u"version 4.1.0"_s});
    row("acknowledgement", R"({"cmd":1,"type":3,"volume":40})", {});
    row("unknown id", R"({"cmd":99,"type":2})", {});
    row("command of ours", R"({"cmd":9,"type":2,"byod_status":2})", {});
}

void tst_DealChannelMsg::understands()
{
    QFETCH(const QByteArray, message);
    Reports display;
    FakeCamera camera;
    (void)DealChannelMsg(display, camera).PraseJson(message.toStdString());
    QTEST(display.seen, "reports");
}

void tst_DealChannelMsg::handsCameraReportsOn()
{
    Reports display;
    FakeCamera camera;
    const DealChannelMsg parser(display, camera);
    (void)parser.PraseJson(R"({"cmd":13,"autoframestatus":7})");
    (void)parser.PraseJson(R"({"cmd":15,"smartframestatus":1})");
    (void)parser.PraseJson(R"({"cmd":21,"type":1,"camerastatus":3})");
    QCOMPARE(camera.autoFraming, std::pair(true, Direction::FromDisplay));
    QCOMPARE(camera.smartFraming, std::pair(true, Direction::FromDisplay));
    QCOMPARE(camera.cameraSwitch, 3);
}

void tst_DealChannelMsg::repliesByType_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("query") << QByteArray(R"({"cmd":5,"seq":9,"type":0,"x":[1,{"y":null}]})")
                           << QByteArray(R"({"cmd":5,"seq":9,"type":1,"x":[1,{"y":null}]})");
    QTest::newRow("no type is a query")
        << QByteArray(R"({"cmd":5})") << QByteArray(R"({"cmd":5,"type":1})");
    QTest::newRow("report, echoed as received") << QByteArray(R"({"cmd":1,"type":2,"volume":150})")
                                                << QByteArray(R"({"cmd":1,"type":3,"volume":150})");
    QTest::newRow("answer") << QByteArray(R"({"cmd":11,"type":1})") << QByteArray();
    QTest::newRow("acknowledgement") << QByteArray(R"({"cmd":1,"type":3})") << QByteArray();
    QTest::newRow("unknown type") << QByteArray(R"({"cmd":1,"type":-4})") << QByteArray();
}

void tst_DealChannelMsg::repliesByType()
{
    QFETCH(const QByteArray, message);
    QFETCH(const QByteArray, expected);
    Reports display;
    FakeCamera camera;
    const auto reply = DealChannelMsg(display, camera).PraseJson(message.toStdString());
    QCOMPARE(reply.has_value(), !expected.isEmpty());
    QCOMPARE(QByteArray::fromStdString(reply.value_or("")), expected);
}

void tst_DealChannelMsg::refusesWhatIsNoObject_data()
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

void tst_DealChannelMsg::refusesWhatIsNoObject()
{
    QFETCH(const QByteArray, message);
    QFETCH(const QString, complaint);
    LogCapture log;
    Reports display;
    FakeCamera camera;
    QVERIFY(!DealChannelMsg(display, camera).PraseJson(message.toStdString()));
    QVERIFY(display.seen.isEmpty());
    QCOMPARE(log.take(),
             QStringList{u"E DealChannelMsg::PraseJson Failed to parse JSON: "_s + complaint});
}

QTEST_GUILESS_MAIN(tst_DealChannelMsg)
#include "tst_DealChannelMsg.moc"
