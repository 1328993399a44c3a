#include "platform/StreamCopy.h"

#include <cstdint>
#include <cstring>

#if defined(__x86_64__) || defined(_M_X64)
#define VORN_STREAMS
#include <immintrin.h>
#ifdef _MSC_VER
#include <windows.h>
#define VORN_WIDE_CODE
// On Windows GCC spills registers of this width to stack addresses that lack the alignment they
// need. Optimised code does not spill them.
#elif !defined(__MINGW32__) || defined(__OPTIMIZE__)
#define VORN_WIDE_CODE __attribute__((target("avx512f")))
#endif
#endif

namespace
{

#ifdef VORN_STREAMS

constexpr std::size_t LineSize = 64;
constexpr std::size_t ReadAhead = 16 * LineSize;
/// Smaller blocks are better kept in the caches.
constexpr std::size_t SmallestStreamed = 1 << 20;

// Both functions copy whole cache lines to an aligned target. Prefetching beyond the end of the
// source is harmless: a prefetch never faults.

void streamLines(char* target, const char* source, std::size_t lines)
{
    for (; lines > 0; --lines, target += LineSize, source += LineSize) {
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
}

#ifdef VORN_WIDE_CODE

VORN_WIDE_CODE void streamLinesWide(char* target, const char* source, std::size_t lines)
{
    for (; lines > 0; --lines, target += LineSize, source += LineSize) {
        _mm_prefetch(source + ReadAhead, _MM_HINT_NTA);
        _mm512_stream_si512(reinterpret_cast<__m512i*>(target), _mm512_loadu_si512(source));
    }
}

bool hasWideRegisters()
{
#ifdef _MSC_VER
    return IsProcessorFeaturePresent(PF_AVX512F_INSTRUCTIONS_AVAILABLE);
#else
    return __builtin_cpu_supports("avx512f") != 0;
#endif
}

#endif

using StreamLines = void (*)(char* target, const char* source, std::size_t lines);

/// Some processors bypass their caches only when a line is written by one instruction.
StreamLines chooseStreamLines()
{
#ifdef VORN_WIDE_CODE
    if (hasWideRegisters())
        return streamLinesWide;
#endif
    return streamLines;
}

void stream(char* target, const char* source, std::size_t length)
{
    static const StreamLines s_streamLines = chooseStreamLines();
    const std::size_t head =
        (LineSize - reinterpret_cast<std::uintptr_t>(target) % LineSize) % LineSize;
    std::memcpy(target, source, head);
    const std::size_t lines = (length - head) / LineSize;
    s_streamLines(target + head, source + head, lines);
    // Without the fence, other threads may see streamed writes in any order.
    _mm_sfence();
    const std::size_t done = head + lines * LineSize;
    std::memcpy(target + done, source + done, length - done);
}

#endif

} // namespace

void platform::streamCopy(void* target, const void* source, std::size_t length)
{
#ifdef VORN_STREAMS
    if (length >= SmallestStreamed) {
        stream(static_cast<char*>(target), static_cast<const char*>(source), length);
        return;
    }
#endif
    std::memcpy(target, source, length);
}
