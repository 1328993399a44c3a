#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>

/// Separates the channel library, which calls back on a thread of its own as long as the process
/// lives, from the objects that handle its messages and end earlier.
class ChannelGate
{
public:
    using Callback = std::function<int(int id, const std::string& msg)>;

    explicit ChannelGate(Callback callback);

    /// Calls the callback while the gate is open; afterwards returns 0 at once. Any thread.
    int pass(int id, const std::string& msg);
    /// Stops further calls and waits for those under way. Must not be called from within one.
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
