// Compares a line of our log with a plain line of glog. glog is process-wide, so two child
// processes write the lines, and the parent runs them in turn.
#include "app/LogInit.h"
#include "bench/Quantile.h"
#include "logging/Log.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

constexpr int LineCount = 2000;
constexpr int RoundCount = 61;
constexpr double Aim = 1.20;
constexpr int ReplyTimeoutMs = 60'000;

void startBareGlog(const QString& folder)
{
    google::InitGoogleLogging("bare");
    google::SetLogDestination(google::GLOG_INFO, (folder + u"/bare"_s).toUtf8().constData());
    google::SetLogFilenameExtension(".log");
    FLAGS_logbufsecs = 0;
    FLAGS_max_log_size = 8;
    FLAGS_stop_logging_if_full_disk = true;
}

void startOurs(const QString& folder)
{
    InitLog(folder, folder + u"/back/"_s, u"ours"_s, 5);
    FLAGS_alsologtostderr = false; // measure the file only
}

void writeBareLine(int number)
{
    LOG(INFO) << "volume:" << number << ", new:" << number + 1;
}

void writeOurLine(int number)
{
    Log::info("DeviceControl::setVolume") << "volume:" << number << ", new:" << number + 1;
}

/// Writes a batch of lines for each character on standard input and prints nanoseconds per line.
int runChild(void (*writeLine)(int))
{
    using Clock = std::chrono::steady_clock;
    for (int character = std::getchar(); character != EOF; character = std::getchar()) {
        const auto start = Clock::now();
        for (int number = 0; number < LineCount; ++number)
            writeLine(number);
        const std::chrono::duration<double, std::nano> taken = Clock::now() - start;
        std::printf("%.1f\n", taken.count() / LineCount);
        std::fflush(stdout);
    }
    return 0;
}

class Child
{
public:
    Child(const QString& mode, const QString& folder)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationFilePath(), {mode, folder});
    }
    ~Child()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Child)

    /// Nanoseconds per line, or 0 if the child has ended.
    double runBatch()
    {
        m_process.write("\n");
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(ReplyTimeoutMs))
                return 0;
        }
        return m_process.readLine().trimmed().toDouble();
    }

private:
    QProcess m_process;
};

int compare()
{
    const QTemporaryDir folder;
    Child bare(u"bare"_s, folder.path());
    Child ours(u"ours"_s, folder.path());
    std::vector<double> bareTimes;
    std::vector<double> ourTimes;
    std::vector<double> ratios;
    for (int round = 0; round < RoundCount; ++round) {
        // The order alternates, so that a drift of the machine's speed cancels out.
        const bool bareFirst = round % 2 == 0;
        const double first = bareFirst ? bare.runBatch() : ours.runBatch();
        const double second = bareFirst ? ours.runBatch() : bare.runBatch();
        if (first <= 0 || second <= 0) {
            std::fputs("log line: a child process gave no answer\n", stderr);
            return 1;
        }
        bareTimes.push_back(bareFirst ? first : second);
        ourTimes.push_back(bareFirst ? second : first);
        ratios.push_back(ourTimes.back() / bareTimes.back());
    }
    std::printf("log line: ratio %.2f (aim %.2f); ours %.2f us, bare glog %.2f us\n",
                median(ratios), Aim, median(ourTimes) / 1000, median(bareTimes) / 1000);
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    if (arguments.size() == 1)
        return compare();
    const auto& folder = arguments.constLast();
    if (arguments.at(1) == "bare"_L1) {
        startBareGlog(folder);
        return runChild(writeBareLine);
    }
    startOurs(folder);
    return runChild(writeOurLine);
}
