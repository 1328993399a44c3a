#include "platform/StreamCopy.h"

#include <cstdint>
#include <cstring>

#if defined(__x86_64__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace
{

#if defined(__x86_64__) || defined(_M_X64)

constexpr std::size_t LineSize = 64;
constexpr std::size_t ReadAhead = 8 * LineSize;
/// What is smaller is better kept in the caches.
constexpr std::size_t SmallestStreamed = 1 << 20;

// Whole lines; the target is aligned to 16 bytes.
void streamLines(char* target, const char* source, std::size_t lines)
{
    for (; lines > 0; --lines, target += LineSize, source += LineSize) {
        // A prefetch beyond the end is no access: it never faults.
        _mm_prefetch(source + ReadAhead, _MM_HINT_NTA);
        const auto* const from = reinterpret_cast<const __m128i*>(source);
        auto* const to = reinterpret_cast<__m128i*>(target);
        const __m128i a = _mm_loadu_si128(from);
        const __m128i b = _mm_loadu_si128(from + 1);
        const __m128i c = _mm_loadu_si128(from + 2);
        const __m128i d = _mm_loadu_si128(from + 3);
        _mm_stream_si128(to, a);
        _mm_stream_si128(to + 1, b);
        _mm_stream_si128(to + 2, c);
        _mm_stream_si128(to + 3, d);
    }
    // Streamed writes are seen by other threads in no order without this.
    _mm_sfence();
}

#endif

} // namespace

void platform::streamCopy(void* target, const void* source, std::size_t length)
{
#if defined(__x86_64__) || defined(_M_X64)
    if (length >= SmallestStreamed) {
        auto* to = static_cast<char*>(target);
        const auto* from = static_cast<const char*>(source);
        constexpr std::size_t alignment = sizeof(__m128i);
        const std::size_t head =
            (alignment - reinterpret_cast<std::uintptr_t>(to) % alignment) % alignment;
        std::memcpy(to, from, head);
        const std::size_t lines = (length - head) / LineSize;
        streamLines(to + head, from + head, lines);
        const std::size_t done = head + lines * LineSize;
        std::memcpy(to + done, from + done, length - done);
        return;
    }
#endif
    std::memcpy(target, source, length);
}
