#pragma once

/// Requests of the device link to the main window. Any thread.
class WindowRequests
{
public:
    virtual ~WindowRequests() = default;

    virtual void askToShow(bool show) = 0;
    /// Whether to warn that the display's firmware is not supported.
    virtual void askToShowCheckRemote(bool show) = 0;
};
