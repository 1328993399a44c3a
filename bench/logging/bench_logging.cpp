// Compares a line of our log with a bare line of glog. glog has one configuration per process, so
// two child processes write the lines, in turn.
#include "app/LogInit.h"
#include "bench/Measure.h"
#include "logging/Log.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

constexpr int LineCount = 2000;
constexpr int RoundCount = 61;
constexpr double Aim = 1.0;

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
    FLAGS_alsologtostderr = false; // measures the file only
}

void writeBareLine(int number)
{
    LOG(INFO) << "volume:" << number << ", new:" << number + 1;
}

void writeOurLine(int number)
{
    Log::info("DeviceControl::setVolume") << "volume:" << number << ", new:" << number + 1;
}

/// For each line of standard input, writes a batch of log lines and answers with nanoseconds per
/// line.
int runChild(void (*writeLine)(int))
{
    for (int character = std::getchar(); character != EOF; character = std::getchar()) {
        const double taken = bench::microsecondsOf([writeLine] {
            for (int number = 0; number < LineCount; ++number)
                writeLine(number);
        });
        std::printf("%.1f\n", taken * 1000 / LineCount);
        std::fflush(stdout);
    }
    return 0;
}

// Has the child write a batch. Returns nanoseconds per line, or 0 if the child has ended.
double runBatch(bench::Child& child)
{
    child.write("\n");
    return child.readLine().toDouble();
}

int compare()
{
    const QTemporaryDir folder;
    const QString program = QCoreApplication::applicationFilePath();
    bench::Child bare(program, {u"bare"_s, folder.path()});
    bench::Child ours(program, {u"ours"_s, folder.path()});
    bench::Values bareTimes;
    bench::Values ourTimes;
    bench::Values ratios;
    for (int round = 0; round < RoundCount; ++round) {
        // The order alternates, so that a drift of the machine affects both alike.
        const bool bareFirst = round % 2 == 0;
        const double first = bareFirst ? runBatch(bare) : runBatch(ours);
        const double second = bareFirst ? runBatch(ours) : runBatch(bare);
        if (first <= 0 || second <= 0) {
            std::fputs("log line: a child process gave no answer\n", stderr);
            return 1;
        }
        bareTimes.push_back(bareFirst ? first : second);
        ourTimes.push_back(bareFirst ? second : first);
        ratios.push_back(ourTimes.back() / bareTimes.back());
    }
    std::printf("log line: ratio %.2f (aim %.2f); ours %.2f us, bare glog %.2f us\n",
                bench::median(ratios), Aim, bench::median(ourTimes) / 1000,
                bench::median(bareTimes) / 1000);
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
