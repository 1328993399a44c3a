#include "simulator/script/StdinReader.h"

#include "portalhub/LineReader.h"

#include <array>
#include <atomic>
#include <thread>

#include <windows.h>

using namespace simulator;

namespace
{

constexpr qsizetype MaxLineLength = qsizetype{8} * 1024 * 1024;

} // namespace

// The event loop can wait neither for a console nor for a pipe, so a thread blocks in the read. Its
// signal reaches the main thread through a queued connection.
struct StdinReader::Private {
    std::atomic_bool ending = false;
    std::atomic_bool ended = false;
    std::atomic<DWORD> threadId = 0;
    std::thread thread;

    void readTo(StdinReader& receiver)
    {
        threadId = GetCurrentThreadId();
        channel::LineReader reader(MaxLineLength);
        std::array<char, 4096> bytes;
        DWORD count = 0;
        const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
        bool more = true;
        while (more && !ending) {
            more = ReadFile(input, bytes.data(), DWORD(bytes.size()), &count, nullptr) && count > 0;
            // The last line may have no newline.
            reader.append(more ? QByteArrayView(bytes.data(), count) : QByteArrayView("\n"));
            while (const auto line = reader.next())
                emit receiver.lineRead(*line);
        }
        ended = true;
    }
};

StdinReader::StdinReader(QObject* parent)
    : QObject(parent)
    , m_private(std::make_unique<Private>())
{
    m_private->thread = std::thread([this] { m_private->readTo(*this); });
}

StdinReader::~StdinReader()
{
    m_private->ending = true;
    // Repeated because a call has no effect while the thread is between two reads.
    while (!m_private->ended) {
        if (const HANDLE thread = OpenThread(THREAD_TERMINATE, FALSE, m_private->threadId)) {
            CancelSynchronousIo(thread);
            CloseHandle(thread);
        }
        std::this_thread::yield();
    }
    m_private->thread.join();
}
