#include "device/FrameMemory.h"

#include <cstring>
#include <utility>

struct FrameMemory::Store {
    std::mutex mutex;
    // Guarded by the mutex.
    std::size_t blockSize = 0; // 0: returned blocks are freed
    std::vector<Memory> idle;
};

FrameMemory::Block::Block(std::shared_ptr<Store> store, Memory memory, std::size_t size)
    : m_store(std::move(store))
    , m_memory(std::move(memory))
    , m_size(size)
{
}

FrameMemory::Block::~Block()
{
    if (!m_store) // moved from
        return;
    const std::scoped_lock lock(m_store->mutex);
    if (m_memory && m_size == m_store->blockSize && m_store->idle.size() < BlockCount)
        m_store->idle.push_back(std::move(m_memory));
}

FrameMemory::FrameMemory()
    : m_store(std::make_shared<Store>())
{
    m_store->idle.reserve(BlockCount);
}

FrameMemory::~FrameMemory()
{
    clear();
}

FrameMemory::Memory FrameMemory::allocate(std::size_t size)
{
    return Memory(static_cast<uchar*>(::operator new(size, Alignment, std::nothrow)));
}

FrameMemory::Block FrameMemory::take(std::size_t size)
{
    const std::scoped_lock lock(m_store->mutex);
    auto& [mutex, blockSize, idle] = *m_store;
    if (size > blockSize) {
        idle.clear();
        blockSize = size;
        while (idle.size() < BlockCount) {
            Memory fresh = allocate(blockSize);
            if (!fresh)
                break;
            std::memset(fresh.get(), 0, blockSize);
            idle.push_back(std::move(fresh));
        }
    }
    if (idle.empty())
        return {m_store, allocate(blockSize), blockSize};
    Memory memory = std::move(idle.back()); // the last one used is most likely in the caches
    idle.pop_back();
    return {m_store, std::move(memory), blockSize};
}

void FrameMemory::clear()
{
    const std::scoped_lock lock(m_store->mutex);
    m_store->blockSize = 0;
    m_store->idle.clear();
}
