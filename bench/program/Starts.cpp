#include "bench/program/Starts.h"

#include "bench/Measure.h"
#include "bench/program/ProgramRun.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

namespace
{

constexpr int StartRounds = 9;
constexpr int SettleTime = 2000; // milliseconds

} // namespace

void waitFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void compareStarts(const QTemporaryDir& home)
{
    bench::Values times[2];
    bench::Values memory[2];
    const QString programs[2] = {QStringLiteral(BARE_WINDOW), QStringLiteral(VORN_PROGRAM)};
    for (int round = 0; round < StartRounds; ++round) {
        for (int i = 0; i < 2; ++i) {
            const ProgramRun run(programs[i], home.path());
            times[i].push_back(run.firstFrameMilliseconds());
            waitFor(SettleTime);
            memory[i].push_back(run.residentMegabytes());
        }
    }
    bench::printRatio("start to first frame", bench::median(times[1]), bench::median(times[0]),
                      "ms", 1.15);
    bench::printRatio("resident memory", bench::median(memory[1]), bench::median(memory[0]), "MB",
                      1.25);
}
