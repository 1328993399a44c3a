#pragma once

#include <QtGlobal>

#include <cstddef>
#include <memory>
#include <mutex>
#include <new>
#include <vector>

/// Memory for video frames that is used again and again: a fresh block of this size costs a page
/// fault every 4096 bytes, which takes longer than filling it.
///
/// The blocks are all of one size, that of the largest frame since the last clear(). They are
/// handed out by one thread and may come back on any, also when this object is gone.
class FrameMemory
{
    struct Free {
        void operator()(uchar* memory) const { ::operator delete(memory, Alignment); }
    };
    using Memory = std::unique_ptr<uchar, Free>;
    struct Store;

public:
    /// A block goes back when its owner is destroyed.
    class Block
    {
    public:
        Block(std::shared_ptr<Store> store, Memory memory, std::size_t size);
        ~Block();
        Block(Block&&) noexcept = default;
        Block& operator=(Block&&) = delete;

        /// Aligned to a page; null when there was no memory. The content is what the last owner
        /// left.
        uchar* data() const { return m_memory.get(); }

    private:
        std::shared_ptr<Store> m_store;
        Memory m_memory;
        std::size_t m_size;
    };

    /// One frame is being filled, one waits for the main thread, one is the sink's, and one may
    /// still be on its way to the graphics card.
    static constexpr int BlockCount = 4;

    FrameMemory();
    ~FrameMemory();
    Q_DISABLE_COPY_MOVE(FrameMemory)

    /// At least @p size bytes. The first time, and whenever blocks of that size are new, all of
    /// them are made and touched. More come when those are in use.
    [[nodiscard]] Block take(std::size_t size);
    /// Frees what nobody uses.
    void clear();

private:
    static constexpr std::align_val_t Alignment{4096};

    static Memory allocate(std::size_t size);

    std::shared_ptr<Store> m_store;
};
