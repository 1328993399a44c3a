#include "simulator/display/DisplayCamera.h"
#include "simulator/display/DisplayModel.h"
#include "simulator/script/EventLog.h"

#include <QJsonDocument>
#include <QTest>

#include <sstream>

using namespace Qt::StringLiterals;
using namespace simulator;

/// The answers and reports of the display.
class tst_DisplayModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void messagesAreAnswered_data();
    void messagesAreAnswered();
    void everyChangeIsReported();
    void cameraMovesWhileAKeyIsDown();

private:
    // The channel delivers a message under the id of its command.
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

void tst_DisplayModel::init()
{
    m_camera.reset();
    m_log = std::make_unique<EventLog>(m_events);
    m_display = std::make_unique<DisplayModel>(*m_log);
    m_camera = std::make_unique<DisplayCamera>(*m_display, *m_log);
    m_sent.clear();
    connect(m_display.get(), &DisplayModel::send, this,
            [this](int, const QByteArray& text) { m_sent.append(text); });
}

void tst_DisplayModel::messagesAreAnswered_data()
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
    row("camera", R"({"cmd":21,"seq":9,"type":0})",
        {R"({"camerastatus":1,"cmd":21,"seq":9,"type":1})"});
    row("volume", R"({"cmd":1,"seq":5,"type":2,"volume":55})",
        {R"({"cmd":1,"seq":5,"type":3,"volume":55})"});
    row("select BYOD", R"({"byod_status":2,"cmd":9,"seq":5,"type":2})",
        {R"({"byod_status":2,"cmd":9,"seq":5,"type":3})",
         R"({"byod_status":2,"cmd":6,"is_byodui_show":1,"seq":4,"type":2,"zoom_status":1})"});
    row("start the set-up", R"({"cmd":22,"seq":5,"type":2})",
        {R"({"cmd":22,"seq":5,"type":3})", R"({"cmd":0,"isReady":2,"seq":4,"type":2})"});
    row("wrong type of a value", R"({"cmd":1,"seq":5,"type":2,"volume":"loud"})",
        {R"({"cmd":1,"seq":5,"type":3,"volume":"loud"})"});
    row("unknown command", R"({"cmd":99,"seq":5,"type":2,"x":[1]})",
        {R"({"cmd":99,"seq":5,"type":3,"x":[1]})"});
    row("acknowledgement", R"({"cmd":1,"seq":5,"type":3,"volume":1})", {});
    row("no JSON", "{\"cmd\":1,", {});
}

void tst_DisplayModel::messagesAreAnswered()
{
    QFETCH(QByteArray, message);
    m_display->connectDisplay(1);
    take();
    receive(message);
    QTEST(m_sent, "answers");
}

void tst_DisplayModel::everyChangeIsReported()
{
    // A display that is not connected sends nothing, and reports its state when it connects.
    m_display->greet();
    m_display->setVolume(33);
    receive(R"({"cmd":11,"seq":1,"type":0})");
    QVERIFY(m_sent.isEmpty());
    m_display->connectDisplay(DisplayModel::FirstRun);
    m_display->setVolume(70);
    m_display->setSource(DisplayModel::Source::None);
    m_display->setVersion(u"5.0"_s);
    m_camera->setOn(false);
    m_camera->setAutoFraming(true);
    m_camera->setSmartFraming(true);
    m_display->disconnectDisplay();
    const QByteArrayList expected{
        R"({"cmd":0,"isReady":2,"seq":1,"type":2})",
        R"({"cmd":1,"seq":2,"type":2,"volume":33})",
        R"({"byod_status":1,"cmd":6,"is_byodui_show":1,"seq":3,"type":2,"zoom_status":1})",
        R"({"cmd":1,"seq":4,"type":2,"volume":70})",
        R"({"byod_status":0,"cmd":6,"is_byodui_show":0,"seq":5,"type":2,"zoom_status":0})",
        R"({"cmd":11,"ota_ver":"5.0","seq":6,"type":2})",
        R"({"camerastatus":0,"cmd":21,"seq":7,"type":2})",
        R"({"autoframestatus":1,"cmd":13,"seq":8,"type":2})",
        R"({"cmd":15,"seq":9,"smartframestatus":1,"type":2})",
        R"({"cmd":0,"isReady":0,"seq":10,"type":2})"};
    QCOMPARE(take(), expected);
}

void tst_DisplayModel::cameraMovesWhileAKeyIsDown()
{
    m_display->connectDisplay(1);
    const auto scale = [this](int key, int status) {
        receive(QStringLiteral(R"({"cmd":18,"scalestatus":%1,"scaletype":%2,"type":2})")
                    .arg(status)
                    .arg(key)
                    .toUtf8());
    };
    const auto preset = [this](int number, int status) {
        receive(QStringLiteral(R"({"cmd":19,"presetindex":%1,"presetstatus":%2,"type":2})")
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

QTEST_GUILESS_MAIN(tst_DisplayModel)
#include "tst_DisplayModel.moc"
