#pragma once

/// What the display reports of its camera. Called on the channel library's thread.
class CameraReports
{
public:
    virtual ~CameraReports() = default;

    /// @param direction  1: reported by the display, hence adopted without answering
    virtual void setAutoFraming(bool newAutoFraming, int direction) = 0;
    virtual void setSmartFraming(bool newSmartFraming, int direction) = 0;
    /// @param sw  0: off, otherwise in use
    virtual void setCameraSwitch(int sw) = 0;
};
