#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>

/// Stands between the channel library, which calls back on a thread of its own for as long as the
/// process lives, and the objects that handle its messages, which do not live that long.
class ChannelGate
{
public:
    using Callback = std::function<int(int id, const std::string& msg)>;

    explicit ChannelGate(Callback callback);

    /// Hands the message on while the gate is open; afterwards returns 0 at once. Any thread.
    int pass(int id, const std::string& msg);
    /// From here on nothing is handed on. Waits for calls under way; not to be called from within
    /// one.
    void close();

private:
    bool enter();
    void leave();

    const Callback m_callback;
    std::mutex m_mutex;
    std::condition_variable m_left;
    int m_inside = 0;
    bool m_closed = false;
};
