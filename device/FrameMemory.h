#pragma once

#include <QtGlobal>

#include <cstddef>
#include <memory>
#include <mutex>
#include <new>
#include <vector>

/// Memory for video frames that is used repeatedly: a fresh block of this size costs a page fault
/// every 4096 bytes, which takes longer than filling it.
///
/// All blocks have one size, that of the largest frame since the last clear(). One thread takes
/// them; they may be destroyed on any thread, also after this object.
class FrameMemory
{
    struct Free {
        void operator()(uchar* memory) const { ::operator delete(memory, Alignment); }
    };
    using Memory = std::unique_ptr<uchar, Free>;
    struct Store;

public:
    /// Owns a block and returns it on destruction.
    class Block
    {
    public:
        Block(std::shared_ptr<Store> store, Memory memory, std::size_t size);
        ~Block();
        Block(Block&&) noexcept = default;
        Block& operator=(Block&&) = delete;

        /// Aligned to a page; null when no memory was available. The content is that of the
        /// last owner.
        uchar* data() const { return m_memory.get(); }

    private:
        std::shared_ptr<Store> m_store;
        Memory m_memory;
        std::size_t m_size;
    };

    /// One block is being filled, one waits for the main thread, one is shown by the sink, and one
    /// may still be uploaded to the graphics card.
    static constexpr int BlockCount = 4;

    FrameMemory();
    ~FrameMemory();
    Q_DISABLE_COPY_MOVE(FrameMemory)

    /// At least @p size bytes. When the size grows, BlockCount blocks are allocated and touched at
    /// once; further ones are allocated while all of those are in use.
    [[nodiscard]] Block take(std::size_t size);
    /// Frees the blocks that are not in use.
    void clear();

private:
    static constexpr std::align_val_t Alignment{4096};

    static Memory allocate(std::size_t size);

    std::shared_ptr<Store> m_store;
};
