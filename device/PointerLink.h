#pragma once

#include "device/UdpClient.h"
#include "threads/Worker.h"

#include <memory>

/// Datagrams to and from the companion programs on this PC: sends the user's pointer events, and
/// logs on a worker what arrives. Main thread, unless noted.
class PointerLink
{
public:
    ~PointerLink();

    /// Binds the port unless it is bound: at the start the previous instance may still have it.
    void bind();
    /// Starts the worker.
    void start();
    /// Asks the worker to end, without waiting for it. Any thread.
    void requestStop();
    /// Asks the worker to end and waits for it. Any thread but the worker.
    void end();

    /// @param type  0 press, 1 release, 2 move
    /// @param x     fraction 0 to 1 of the picture's width, y likewise of its height
    void send(int type, float x, float y);

private:
    void logDatagrams(const std::stop_token& stop);

    UdpClient m_udpClient;
    std::unique_ptr<Worker> m_worker; // last, since the worker uses the client
};
