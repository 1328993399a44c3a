#pragma once

#include "device/DisplayValues.h"

#include <QString>

/// Receives the reports of the display about itself, on the channel library's thread and with
/// Direction::FromDisplay.
class DisplayReports
{
public:
    virtual ~DisplayReports() = default;

    virtual void setConnectMode(ConnectMode mode) = 0;
    /// @param newVolume  0 to 100
    virtual void setVolume(int newVolume, Direction direction) = 0;
    virtual void setByodSwitch(SourceState newByodSwitch, Direction direction) = 0;
    virtual void setZoomSwitch(SourceState newZoomSwitch, Direction direction) = 0;
    virtual void setRemoteVer(const QString& newRemoteVer) = 0;
    virtual void setVolumeReady(int ready) = 0;
    virtual void setShareStatusReady(int ready) = 0;
    virtual void setRemoteVerReady(int ready) = 0;
};
