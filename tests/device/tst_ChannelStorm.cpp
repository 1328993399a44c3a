#include "rig/Fakes.h"
#include "support/LogCapture.h"

#include <QJsonArray>
#include <QRandomGenerator>
#include <QTest>

#include <thread>

namespace
{

constexpr int Messages = 100000;

/// Messages as a display and a hostile peer would send them: a fifth is malformed.
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
        switch (number(9)) {
        case 0: {
            const std::string whole = wellFormed();
            return whole.substr(0, std::size_t(number(int(whole.size()))));
        }
        case 1:
            return R"({"cmd":"1","type":[2],"volume":{"a":null}})";
        case 2:
            return std::string(std::size_t(number(3000)), '{');
        case 3:
            return R"({"cmd":6,"type":2,"byod_status":1e308,"zoom_status":-99999999999999999999})";
        case 4:
            return "{\"cmd\":11,\"type\":1,\"ota_ver\":\"\xc3\x28\"}";
        case 5:
            return "[1,2,3]";
        case 6:
            return "\"text\"";
        case 7:
            // A megabyte now and then; each is logged whole, so not too often.
            if (number(200) == 0)
                return R"({"cmd":11,"type":2,"ota_ver":")" + std::string(1 << 20, 'x') + "\"}";
            return "null";
        default:
            return std::string(std::size_t(number(40)), '\0');
        }
    }

    QRandomGenerator m_random;
};

} // namespace

class tst_ChannelStorm : public QObject
{
    Q_OBJECT

private slots:
    void everyMessageIsAnsweredOrReported();
};

/// Two threads of a library deliver at once, the status worker queries and the main thread reads.
void tst_ChannelStorm::everyMessageIsAnsweredOrReported()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    LogCapture log;
    std::atomic<int> expectedReplies = 0;
    std::atomic<int> expectedErrors = 0;
    std::atomic<bool> repliesAreRight = true;

    const auto deliver = [&](quint32 seed) {
        MessageSource source(seed);
        for (int i = 0; i < Messages / 2; ++i) {
            const std::string text = source.next();
            const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(text));
            const int type = document.object()["type"_L1].toInt();
            if (!document.isObject())
                ++expectedErrors;
            else if (type == 0 || type == 2)
                ++expectedReplies;
            device.handleChannelMessage(int(seed), text);
        }
    };
    int replies = 0;
    const auto checkSent = [&] {
        for (const ChannelMessage& sent : world.channel.take()) {
            if (sent.command == ChannelCommand::FirmwareVersion)
                continue;
            ++replies;
            const int type = QJsonDocument::fromJson(QByteArray::fromStdString(sent.text))
                                 .object()["type"_L1]
                                 .toInt();
            if (type != 1 && type != 3)
                repliesAreRight = false;
        }
    };
    int errors = 0;
    const auto countErrors = [&] {
        errors += int(log.take().filter(u"E DealChannelMsg::PraseJson Failed to parse"_s).size());
    };

    std::atomic<int> running = 2;
    std::vector<std::thread> library;
    for (const quint32 seed : {1001u, 1002u})
        library.emplace_back([&, seed] {
            deliver(seed);
            --running;
        });
    while (running > 0) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        device.volume();
        checkSent();
        countErrors();
        std::this_thread::yield();
    }
    for (std::thread& thread : library)
        thread.join();
    checkSent();
    countErrors();

    QVERIFY(repliesAreRight);
    QCOMPARE(replies, expectedReplies.load());
    QCOMPARE(errors, expectedErrors.load());
    QVERIFY(expectedErrors > Messages / 10);
    QVERIFY(device.volume() >= 0 && device.volume() <= 100);
}

int main(int argc, char** argv)
{
    // Two hundred thousand lines would only slow the run down; the test sees them all the same.
    FLAGS_minloglevel = google::GLOG_INFO;
    FLAGS_logtostderr = false;
    FLAGS_stderrthreshold = google::GLOG_FATAL;
    for (int severity = google::GLOG_INFO; severity < google::NUM_SEVERITIES; ++severity)
        google::SetLogDestination(severity, "");
    google::InitGoogleLogging(argv[0]);
    const QCoreApplication app(argc, argv);
    tst_ChannelStorm test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_ChannelStorm.moc"
