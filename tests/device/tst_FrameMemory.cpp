#include "device/FrameFactory.h"

#include <QTest>

#include <optional>
#include <set>
#include <thread>

/// Memory that is used for one frame after the other.
class tst_FrameMemory : public QObject
{
    Q_OBJECT

private slots:
    void usesBlocksAgain();
    void growsInNumberAndSize();
    void blocksReturnOnAnyThreadAndLater();
};

void tst_FrameMemory::usesBlocksAgain()
{
    FrameMemory memory;
    std::set<uchar*> seen;
    for (int i = 0; i < 1000; ++i) {
        const FrameMemory::Block first = memory.take(10'000);
        const FrameMemory::Block second = memory.take(9'000);
        QVERIFY(first.data() != second.data());
        std::memset(first.data(), 1, 10'000);
        seen.insert({first.data(), second.data()});
    }
    QVERIFY(seen.size() <= FrameMemory::BlockCount);
}

void tst_FrameMemory::growsInNumberAndSize()
{
    FrameMemory memory;
    std::optional<FrameMemory::Block> small(memory.take(100));
    std::vector<FrameMemory::Block> held;
    std::set<uchar*> seen;
    for (int i = 0; i < 3 * FrameMemory::BlockCount; ++i) {
        held.push_back(memory.take(100'000));
        std::memset(held.back().data(), 1, 100'000);
        seen.insert(held.back().data());
        small.reset(); // too small to be used again
    }
    QCOMPARE(seen.size(), held.size());
}

void tst_FrameMemory::blocksReturnOnAnyThreadAndLater()
{
    auto memory = std::make_unique<FrameMemory>();
    for (int i = 0; i < 200; ++i) {
        FrameMemory::Block block = memory->take(100'000);
        std::memset(block.data(), i, 100'000);
        std::thread([block = std::move(block)] {}).join();
    }
    const FrameMemory::Block block = memory->take(100);
    std::optional<FrameMemory::Block> another(memory->take(100));
    memory->clear();
    another.reset();
    memory.reset();
    std::memset(block.data(), 1, 100);
}

QTEST_GUILESS_MAIN(tst_FrameMemory)
#include "tst_FrameMemory.moc"
