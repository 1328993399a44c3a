#pragma once

#include <functional>
#include <memory>

namespace platform
{

/// Passes the system's requests to end the program (SIGTERM, SIGINT and SIGHUP; on Windows the
/// console events) to a callback, which runs in the event loop of the main thread. A signal that is
/// ignored, as nohup(1) does, stays ignored. Only one object may exist. Construct and destroy it on
/// the main thread while the application object exists, and construct it after other signal
/// handlers are installed.
class TerminationSignals
{
public:
    explicit TerminationSignals(std::function<void()> requested);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    class Private;
    std::unique_ptr<Private> m_private;
};

} // namespace platform
