#include "rig/Fakes.h"
#include "support/LogCapture.h"

#include <QRandomGenerator>
#include <QTest>

#include <thread>

namespace
{

constexpr int Messages = 100000;

/// Messages of a display and of a hostile peer: a fifth is malformed.
class MessageSource
{
public:
    explicit MessageSource(quint32 seed)
        : m_random(seed)
    {
    }

    std::string next() { return m_random.bounded(5) == 0 ? malformed() : wellFormed(); }

private:
    int number(int limit) { return int(m_random.bounded(limit)); }

    std::string wellFormed()
    {
        static const QStringList keys{u"volume"_s,       u"isReady"_s,        u"byod_status"_s,
                                      u"zoom_status"_s,  u"is_byodui_show"_s, u"ota_ver"_s,
                                      u"camerastatus"_s, u"autoframestatus"_s};
        QJsonObject message{
            {u"cmd"_s, number(25)}, {u"type"_s, number(4)}, {u"seq"_s, number(1000)}};
        message[keys[number(int(keys.size()))]] = number(130) - 10;
        return QJsonDocument(message).toJson(QJsonDocument::Compact).toStdString();
    }

    std::string malformed()
    {
        static const std::vector<std::string> texts{
            R"({"cmd":"1","type":[2],"volume":{"a":null}})",
            R"({"cmd":6,"type":2,"byod_status":1e308,"zoom_status":-99999999999999999999})",
            "{\"cmd\":11,\"type\":1,\"ota_ver\":\"\xc3\x28\"}",
            "[1,2,3]",
            "\"text\"",
            "null",
            std::string(2000, '{'),
            std::string(30, '\0')};
        if (number(2000) == 0) // rarely, since it is logged in full
            return R"({"cmd":11,"type":2,"ota_ver":")" + std::string(1 << 20, 'x') + "\"}";
        if (number(9) > 0)
            return texts[std::size_t(number(int(texts.size())))];
        const std::string whole = wellFormed();
        return whole.substr(0, std::size_t(number(int(whole.size()))));
    }

    QRandomGenerator m_random;
};

int typeOf(const std::string& text)
{
    const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(text));
    return document.isObject() ? document["type"_L1].toInt() : -1;
}

} // namespace

class tst_ChannelStorm : public QObject
{
    Q_OBJECT

private slots:
    void everyMessageIsAnsweredOrReported();
};

/// Two threads of the library deliver at once, the status worker asks for the firmware version and
/// the main thread reads.
void tst_ChannelStorm::everyMessageIsAnsweredOrReported()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    LogCapture log;
    std::atomic<int> expectedReplies = 0;
    std::atomic<int> expectedErrors = 0;
    std::atomic<int> running = 2;
    std::vector<std::thread> library;
    for (const quint32 seed : {1001u, 1002u})
        library.emplace_back([&, seed] {
            MessageSource source(seed);
            for (int i = 0; i < Messages / 2; ++i) {
                const std::string text = source.next();
                const int type = typeOf(text);
                expectedErrors += type < 0 ? 1 : 0;
                expectedReplies += type == 0 || type == 2 ? 1 : 0;
                device.handleChannelMessage(int(seed), text);
            }
            --running;
        });

    int replies = 0;
    int wrongReplies = 0;
    int errors = 0;
    int received = 0;
    const auto count = [&] {
        for (const ChannelMessage& sent : world.channel.take()) {
            if (sent.command == ChannelCommand::FirmwareVersion)
                continue;
            ++replies;
            wrongReplies += typeOf(sent.text) == 1 || typeOf(sent.text) == 3 ? 0 : 1;
        }
        for (const QString& line : log.take()) {
            if (line.startsWith("I DeviceControl::DealChannelMsg recv :"_L1))
                ++received;
            else if (line.startsWith("E DealChannelMsg::PraseJson Failed to parse"_L1))
                ++errors;
            else if (line.startsWith(u"I DealChannelMsg::PraseJson … and "_s))
                errors += line.section(u' ', 4, 4).toInt();
        }
    };
    while (running > 0) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        device.volume();
        count();
        std::this_thread::yield();
    }
    for (std::thread& thread : library)
        thread.join();
    const int volume = device.volume();
    world.device.reset(); // writes the sum of the errors that were not logged
    count();

    QCOMPARE(wrongReplies, 0);
    QCOMPARE(replies, expectedReplies.load());
    QCOMPARE(errors, expectedErrors.load());
    QVERIFY(expectedErrors > Messages / 10);
    QVERIFY(volume >= 0 && volume <= 100);
    QVERIFY(received >= 200 && received < Messages / 2);
}

int main(int argc, char** argv)
{
    // The test counts the lines through its own sink; standard error would only slow it down.
    FLAGS_stderrthreshold = google::GLOG_FATAL;
    for (int severity = google::GLOG_INFO; severity < google::NUM_SEVERITIES; ++severity)
        google::SetLogDestination(severity, "");
    google::InitGoogleLogging(argv[0]);
    const QCoreApplication app(argc, argv);
    tst_ChannelStorm test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_ChannelStorm.moc"
