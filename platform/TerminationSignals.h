#pragma once

#include <functional>
#include <memory>

namespace platform
{

/// The system's requests to end the program (SIGTERM, SIGINT and SIGHUP; on Windows the console's),
/// handed to a callback in the main thread's event loop. One object at a time, made and destroyed
/// on the main thread while the application object lives, after any other signal handler is
/// installed.
class TerminationSignals
{
public:
    explicit TerminationSignals(std::function<void()> requested);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace platform
