#pragma once

#include <QString>

/// What the display reports of itself. Called on the channel library's thread; `direction` is
/// always 1.
class DisplayReports
{
public:
    virtual ~DisplayReports() = default;

    virtual void setConnectMode(int mode) = 0;
    /// @param newVolume  0 to 100
    virtual void setVolume(int newVolume, int direction) = 0;
    virtual void setByodSwitch(int newByodSwitch, int direction) = 0;
    virtual void setZoomSwitch(int newZoomSwitch, int direction) = 0;
    virtual void setRemoteVer(const QString& newRemoteVer) = 0;
    virtual void setVolumeReady(int ready) = 0;
    virtual void setShareStatusReady(int ready) = 0;
    virtual void setRemoteVerReady(int ready) = 0;
};
