#pragma once

#include "device/FrameHeader.h"
#include "framewriter/FrameLayout.h"
#include "platform/FrameChannel.h"

#include <cstring>
#include <functional>
#include <vector>

/// Shared memory without another process. The test plays the writer in a function that each wait
/// calls, on the receiver's thread.
class FakeFrameChannel : public platform::FrameChannel
{
public:
    using Writer = std::function<WaitResult(FakeFrameChannel& channel)>;

    explicit FakeFrameChannel(Writer writer)
        : m_writer(std::move(writer))
        , m_view(FrameHeader::ViewSize)
    {
    }

    OpenResult open() override
    {
        const OpenResult result = onOpen ? onOpen() : OpenResult{};
        m_isOpen = result.failedAt == OpenStep::Done;
        return result;
    }
    bool isOpen() const override { return m_isOpen; }
    void close() override { m_isOpen = false; }
    WaitResult wait(std::chrono::milliseconds) override { return m_writer(*this); }
    void interrupt() override {}

    bool copyOut(std::size_t offset, void* target, std::size_t length) override
    {
        if (offset > m_view.size() || length > m_view.size() - offset) {
            ++readsOutside;
            return false;
        }
        if (isCutShort)
            return false;
        std::memcpy(target, m_view.data() + offset, length);
        if (afterRead)
            afterRead();
        return true;
    }

    uchar* view() { return m_view.data(); }
    uchar* data() { return view() + framelayout::DataOffset; }

    void putHeader(const FrameHeader& header)
    {
        framelayout::store({header.index, header.frameNumber, header.w, header.h, header.len},
                           view());
    }

    std::function<OpenResult()> onOpen;
    std::function<void()> afterRead;
    bool isCutShort = false;
    int readsOutside = 0;

private:
    const Writer m_writer;
    std::vector<uchar>
        m_view; // of the exact size, so that a sanitizer reports the first byte beyond
    bool m_isOpen = false;
};
