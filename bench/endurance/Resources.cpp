#include "bench/endurance/Resources.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

#include <malloc.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

/// A figure is the median of so many days.
constexpr std::size_t DaysPerFigure = 5;
constexpr double LargestLog = 64 + 8; // MB: the bound of the log and the file being written

double residentMegabytes()
{
    QFile file(u"/proc/self/statm"_s);
    const double pages =
        file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toDouble() : 0;
    return pages * double(::sysconf(_SC_PAGESIZE)) / 1e6;
}

double heapMegabytes()
{
    const auto heap = ::mallinfo2();
    return double(heap.uordblks + heap.hblkhd) / 1e6;
}

double entryCount(const QString& folder)
{
    return double(
        QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
}

double fileCount(const QString& folder)
{
    QDirIterator files(folder, QDir::Files | QDir::System | QDir::Hidden,
                       QDirIterator::Subdirectories);
    double count = 0;
    for (; files.hasNext(); files.next())
        ++count;
    return count;
}

double logMegabytes(const QString& home)
{
    double bytes = 0;
    QDirIterator files(home, {u"*.log"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        bytes += double(QFileInfo(files.next()).size());
    return bytes / 1e6;
}

} // namespace

Resources Resources::measure(const QString& home)
{
    return {.resident = residentMegabytes(),
            .heap = heapMegabytes(),
            .handles = entryCount(u"/proc/self/fd"_s),
            .threads = entryCount(u"/proc/self/task"_s),
            .tempFiles = fileCount(home + u"/tmp"_s),
            .log = logMegabytes(home)};
}

bool ResourceDiary::report() const
{
    const double log = m_days.back().log;
    const bool isLogBounded = log < LargestLog;
    std::printf("  [%c] log files: %.1f MB at the end (bound %.0f)\n", isLogBounded ? 'x' : ' ',
                log, LargestLog);
    const bool results[] = {reportOne("resident memory, MB", &Resources::resident, 1.2, 0),
                            reportOne("heap in use, MB", &Resources::heap, 1.05, 1),
                            reportOne("handles", &Resources::handles, 1, 3),
                            reportOne("threads", &Resources::threads, 1, 3),
                            reportOne("temporary files", &Resources::tempFiles, 1, 3),
                            isLogBounded};
    return std::ranges::all_of(results, std::identity());
}

bool ResourceDiary::reportOne(const char* what, double Resources::*figure, double ratio,
                              double slack) const
{
    const auto medianFrom = [&](std::size_t first) {
        bench::Values values;
        for (std::size_t i = first; i < std::min(first + DaysPerFigure, m_days.size()); ++i)
            values.push_back(m_days[i].*figure);
        return bench::median(values);
    };
    const double before = medianFrom(m_days.size() / 10);
    const double after = medianFrom(m_days.size() - std::min(m_days.size(), DaysPerFigure));
    const bool isFlat = after <= before * ratio + slack;
    std::printf("  [%c] %s: %.1f after the first tenth, %.1f at the end (ratio %.2f, bound %.1f)\n",
                isFlat ? 'x' : ' ', what, before, after, after / std::max(before, 1.0),
                before * ratio + slack);
    return isFlat;
}
