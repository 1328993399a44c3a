#include "simulator/display/DisplayModel.h"
#include "simulator/display/DisplayCamera.h"
#include "simulator/script/EventLog.h"

#include <QJsonDocument>
#include <QTest>

#include <sstream>

using namespace Qt::StringLiterals;
using namespace simulator;

/// What the display answers, message by message.
class DisplayModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void answers_data();
    void answers();
    void staysSilentWithoutDisplay();
    void reportsItselfToPrograms();
    void reportsEveryChange();
    void canWithholdAcknowledgements();
    void recordsCameraCommands();
    void cameraMovesWhileAButtonIsDown();
    void survivesWrongTypes_data();
    void survivesWrongTypes();

private:
    // As the channel delivers it: the id is the message's command.
    void receive(const QByteArray& text)
    {
        m_display->receive(QJsonDocument::fromJson(text).object().value("cmd"_L1).toInt(), text);
    }
    QByteArrayList take() { return std::exchange(m_sent, {}); }

    std::ostringstream m_events;
    std::unique_ptr<EventLog> m_log;
    std::unique_ptr<DisplayModel> m_display;
    std::unique_ptr<DisplayCamera> m_camera;
    QByteArrayList m_sent;
};

void DisplayModelTest::init()
{
    m_camera.reset();
    m_log = std::make_unique<EventLog>(m_events);
    m_display = std::make_unique<DisplayModel>(*m_log);
    m_camera = std::make_unique<DisplayCamera>(*m_display, *m_log);
    m_sent.clear();
    connect(m_display.get(), &DisplayModel::send, this,
            [this](int, const QByteArray& text) { m_sent.append(text); });
}

void DisplayModelTest::answers_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArrayList>("answers");
    const auto row = [](const char* name, const QByteArray& message,
                        const QByteArrayList& answers) {
        QTest::newRow(name) << message << answers;
    };
    row("version", R"({"cmd":11,"seq":7,"type":0})",
        {R"({"cmd":11,"ota_ver":"4.1.0","seq":7,"type":1})"});
    row("auto framing", R"({"cmd":14,"seq":8,"type":0})",
        {R"({"autoframestatus":0,"cmd":13,"seq":8,"type":1})"});
    row("smart framing", R"({"cmd":16,"seq":9,"type":0})",
        {R"({"cmd":15,"seq":9,"smartframestatus":0,"type":1})"});
    row("camera", R"({"cmd":21,"seq":9,"type":0})",
        {R"({"camerastatus":1,"cmd":21,"seq":9,"type":1})"});
    row("volume", R"({"cmd":1,"seq":5,"type":2,"volume":55})",
        {R"({"cmd":1,"seq":5,"type":3,"volume":55})"});
    row("select BYOD", R"({"byod_status":2,"cmd":9,"seq":5,"type":2})",
        {R"({"byod_status":2,"cmd":9,"seq":5,"type":3})",
         R"({"byod_status":2,"cmd":6,"is_byodui_show":1,"seq":4,"type":2,"zoom_status":1})"});
    row("select the room meeting", R"({"cmd":10,"seq":5,"type":2,"zoom_status":2})",
        {R"({"cmd":10,"seq":5,"type":3,"zoom_status":2})",
         R"({"byod_status":1,"cmd":6,"is_byodui_show":1,"seq":4,"type":2,"zoom_status":2})"});
    row("start BYOD", R"({"cmd":12,"seq":5,"type":0})",
        {R"({"byod_status":2,"cmd":6,"is_byodui_show":1,"seq":4,"type":2,"zoom_status":1})"});
    row("start the set-up", R"({"cmd":22,"seq":5,"type":2})",
        {R"({"cmd":22,"seq":5,"type":3})", R"({"cmd":0,"isReady":2,"seq":4,"type":2})"});
    row("unknown command", R"({"cmd":99,"seq":5,"type":2,"x":[1]})",
        {R"({"cmd":99,"seq":5,"type":3,"x":[1]})"});
    row("unknown query", R"({"cmd":99,"seq":5,"type":0})", {});
    row("acknowledgement", R"({"cmd":1,"seq":5,"type":3,"volume":1})", {});
    row("no JSON", "{\"cmd\":1,", {});
    row("no object", "[1]", {});
}

void DisplayModelTest::answers()
{
    QFETCH(QByteArray, message);
    m_display->connectDisplay(1);
    take();
    receive(message);
    QTEST(m_sent, "answers");
}

void DisplayModelTest::staysSilentWithoutDisplay()
{
    m_display->greet();
    m_display->setVolume(10);
    m_camera->setOn(false);
    receive(R"({"cmd":11,"seq":1,"type":0})");
    receive(R"({"cmd":1,"seq":1,"type":2,"volume":90})");
    QVERIFY(m_sent.isEmpty());
    QCOMPARE(m_display->status().value("volume"_L1).toInt(), 10);
}

void DisplayModelTest::reportsItselfToPrograms()
{
    m_display->setVolume(33);
    m_display->connectDisplay(2);
    QCOMPARE(take(), QByteArrayList({R"({"cmd":0,"isReady":2,"seq":1,"type":2})",
                                     R"({"cmd":1,"seq":2,"type":2,"volume":33})",
                                     R"({"byod_status":1,"cmd":6,"is_byodui_show":1,"seq":3,)"
                                     R"("type":2,"zoom_status":1})"}));
    m_display->greet();
    QCOMPARE(take().size(), 3);
    m_display->disconnectDisplay();
    QCOMPARE(take(), QByteArrayList({R"({"cmd":0,"isReady":0,"seq":7,"type":2})"}));
}

void DisplayModelTest::reportsEveryChange()
{
    m_display->connectDisplay(1);
    take();
    m_display->setVolume(70);
    m_display->setSource(DisplayModel::Source::Zoom);
    m_display->setSource(DisplayModel::Source::None);
    m_display->setVersion(u"5.0"_s);
    m_camera->setOn(false);
    m_camera->setAutoFraming(true);
    m_camera->setSmartFraming(true);
    const QByteArrayList expected{
        R"({"cmd":1,"seq":4,"type":2,"volume":70})",
        R"({"byod_status":1,"cmd":6,"is_byodui_show":1,"seq":5,"type":2,"zoom_status":2})",
        R"({"byod_status":0,"cmd":6,"is_byodui_show":0,"seq":6,"type":2,"zoom_status":0})",
        R"({"cmd":11,"ota_ver":"5.0","seq":7,"type":2})",
        R"({"camerastatus":0,"cmd":21,"seq":8,"type":2})",
        R"({"autoframestatus":1,"cmd":13,"seq":9,"type":2})",
        R"({"cmd":15,"seq":10,"smartframestatus":1,"type":2})"};
    QCOMPARE(take(), expected);
}

void DisplayModelTest::canWithholdAcknowledgements()
{
    m_display->connectDisplay(1);
    m_display->setAcknowledging(false);
    take();
    receive(R"({"cmd":1,"seq":1,"type":2,"volume":90})");
    QVERIFY(m_sent.isEmpty());
    QCOMPARE(m_display->status().value("volume"_L1).toInt(), 90);
}

void DisplayModelTest::cameraMovesWhileAButtonIsDown()
{
    m_display->connectDisplay(1);
    const auto scale = [this](int key, int status) {
        receive(
            QStringLiteral(
                R"({"cmd":18,"control":"scale","scalestatus":%1,"scaletype":%2,"seq":1,"type":2})")
                .arg(status)
                .arg(key)
                .toUtf8());
    };
    const auto preset = [this](int number, int status) {
        receive(
            QStringLiteral(
                R"({"cmd":19,"control":"preset","presetindex":%1,"presetstatus":%2,"seq":1,"type":2})")
                .arg(number)
                .arg(status)
                .toUtf8());
    };
    constexpr int ZoomIn = 0;
    constexpr int Left = 4;
    scale(Left, 0);
    scale(ZoomIn, 0);
    QTRY_VERIFY(m_camera->view()->pan < -0.5);
    scale(Left, 1);
    const double pan = m_camera->view()->pan;
    QTRY_VERIFY(m_camera->view()->zoom > 1.05);
    scale(ZoomIn, 1);
    QCOMPARE(m_camera->view()->pan, pan);

    preset(1, 1);
    preset(0, 0);
    QCOMPARE(*m_camera->view(), CameraView());
    preset(1, 0);
    QCOMPARE(m_camera->view()->pan, pan);
    scale(17, 0);
    preset(-3, 1);
    m_camera->setOn(false);
    QVERIFY(!m_camera->view());
}

void DisplayModelTest::recordsCameraCommands()
{
    m_display->connectDisplay(1);
    const QByteArray scale =
        R"({"cmd":18,"cmdtype":"CameraControl","control":"scale","scalestatus":0,"scaletype":4,"type":2})";
    for (int i = 0; i < 150; ++i)
        receive(scale);
    receive(R"({"cmd":19,"control":"preset","presetindex":2,"type":2})");
    receive(R"({"autoframestatus":1,"cmd":13,"type":2})");
    const QJsonArray commands = m_camera->status().value("commands"_L1).toArray();
    QCOMPARE(commands.size(), 100);
    QCOMPARE(commands.first().toObject().value("scaletype"_L1).toInt(), 4);
    QCOMPARE(commands.last().toObject().value("presetindex"_L1).toInt(), 2);
    QVERIFY(m_camera->status().value("autoFraming"_L1).toBool());
}

void DisplayModelTest::survivesWrongTypes_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("volume") << QByteArray(R"({"cmd":1,"type":2,"volume":"loud"})");
    QTest::newRow("huge") << QByteArray(R"({"cmd":1,"type":2,"volume":1e300})");
    QTest::newRow("command") << QByteArray(R"({"cmd":"1","type":2})");
    QTest::newRow("type") << QByteArray(R"({"cmd":1,"type":{},"volume":7})");
    QTest::newRow("framing") << QByteArray(R"({"autoframestatus":[1],"cmd":13,"type":2})");
}

void DisplayModelTest::survivesWrongTypes()
{
    QFETCH(QByteArray, message);
    m_display->connectDisplay(1);
    receive(message);
    QCOMPARE(m_display->status().value("volume"_L1).toInt(), 40);
    QVERIFY(!m_camera->status().value("autoFraming"_L1).toBool());
}

QTEST_GUILESS_MAIN(DisplayModelTest)
#include "DisplayModelTest.moc"
