#include "bench/Measure.h"
#include "rig/Fakes.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QTemporaryDir>

namespace
{

constexpr int Rounds = 21;
constexpr int MessagesPerRound = 4000;

std::string volumeMessage(int i)
{
    return R"({"cmd":1,"seq":)" + std::to_string(i) + R"(,"type":2,"volume":)" +
           std::to_string(i % 2 == 0 ? 30 : 60) + "}";
}

/// The minimum work for an answer: parse the message, change its type, serialise it.
std::string bareReply(const std::string& text)
{
    QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
    object["type"_L1] = 3;
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

template <typename Work>
double microsecondsEach(Work work)
{
    const double taken = bench::microsecondsOf([&] {
        for (int i = 0; i < MessagesPerRound; ++i)
            work(volumeMessage(i));
    });
    return taken / MessagesPerRound;
}

/// Runs both alternately, so that they meet the same state of the machine.
template <typename Baseline, typename Work>
void compare(const char* what, Baseline baseline, Work work)
{
    bench::Values baselines;
    bench::Values times;
    for (int round = 0; round < Rounds; ++round) {
        baselines.push_back(microsecondsEach(baseline));
        times.push_back(microsecondsEach(work));
    }
    bench::printRatio(what, bench::median(times), bench::median(baselines), "us", 1.2);
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir folder;
    FLAGS_stderrthreshold = google::GLOG_FATAL;
    FLAGS_logbufsecs = 0;
    FLAGS_log_dir = folder.path().toStdString();
    google::InitGoogleLogging(argv[0]);
    const QCoreApplication app(argc, argv);

    DeviceWorld world;
    DeviceControl& device = world.start();
    const auto handle = [&](const std::string& text) {
        device.handleChannelMessage(1, text);
        world.channel.take();
    };
    std::string reply;
    const auto bare = [&](const std::string& text) { reply = bareReply(text); };
    const auto bareWithLog = [&](const std::string& text) {
        LOG(INFO) << "recv :" << text;
        reply = bareReply(text);
        LOG(INFO) << "direction:" << 1 << ", m_volume:" << 30 << ", newVolume:" << 60;
        LOG(INFO) << "reply:" << reply;
    };

    compare("message to property and reply, with the log, against bare glog lines and JSON",
            bareWithLog, handle);
    FLAGS_minloglevel = google::GLOG_FATAL;
    compare("message to property and reply, log off, against bare JSON", bare, handle);
}
