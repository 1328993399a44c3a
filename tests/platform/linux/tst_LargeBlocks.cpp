#include "platform/LargeBlocks.h"

#include <QFile>
#include <QTest>

#include <latch>
#include <mutex>
#include <thread>
#include <vector>

#include <unistd.h>

namespace
{

constexpr int ThreadCount = 12;
constexpr std::size_t BlockSize = std::size_t{16} * 1024 * 1024;

qint64 residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    const QByteArray pages =
        file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1) : QByteArray();
    return pages.toLongLong() * ::sysconf(_SC_PAGESIZE);
}

} // namespace

class tst_LargeBlocks : public QObject
{
    Q_OBJECT

private slots:
    void keepsLittleForManyThreads();
};

void tst_LargeBlocks::keepsLittleForManyThreads()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("Sanitizers have a heap of their own.");
#endif
    platform::keepLargeBlocks(BlockSize, 4);
    const qint64 before = residentBytes();
    std::latch started(ThreadCount);
    std::mutex oneAtATime;
    std::vector<std::jthread> threads;
    for (int i = 0; i < ThreadCount; ++i) {
        threads.emplace_back([&] {
            std::vector<char> block(1); // takes a heap for this thread
            started.arrive_and_wait();
            const std::scoped_lock lock(oneAtATime);
            block = std::vector<char>(BlockSize, '1');
        });
    }
    threads.clear();
    QCOMPARE_LT(residentBytes() - before, qint64(ThreadCount / 2 * BlockSize));
}

QTEST_APPLESS_MAIN(tst_LargeBlocks)
#include "tst_LargeBlocks.moc"
