#include "platform/linux/AlternateStack.h"

#include <csignal>
#include <cstddef>

#include <sys/mman.h>

namespace
{

constexpr std::size_t StackSize = std::size_t{128} * 1024; // the unwinder alone needs several pages

class AlternateStack
{
public:
    AlternateStack()
    {
        stack_t current = {};
        if (sigaltstack(nullptr, &current) != 0 || !(current.ss_flags & SS_DISABLE))
            return;
        void* const memory = ::mmap(nullptr, StackSize, PROT_READ | PROT_WRITE,
                                    MAP_PRIVATE | MAP_ANONYMOUS | MAP_STACK, -1, 0);
        if (memory == MAP_FAILED)
            return;
        stack_t own = {};
        own.ss_sp = memory;
        own.ss_size = StackSize;
        m_memory = memory;
        sigaltstack(&own, nullptr);
    }

    ~AlternateStack()
    {
        if (!m_memory)
            return;
        stack_t none = {};
        none.ss_flags = SS_DISABLE;
        sigaltstack(&none, nullptr);
        ::munmap(m_memory, StackSize);
    }

    AlternateStack(const AlternateStack&) = delete;
    AlternateStack& operator=(const AlternateStack&) = delete;

private:
    void* m_memory = nullptr;
};

} // namespace

namespace platform
{

void ensureAlternateStack()
{
    static thread_local const AlternateStack s_stack;
}

} // namespace platform
