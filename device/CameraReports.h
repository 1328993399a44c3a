#pragma once

#include "device/DisplayValues.h"

/// Receives the reports of the display about its camera, on the channel library's thread.
class CameraReports
{
public:
    virtual ~CameraReports() = default;

    virtual void setAutoFraming(bool newAutoFraming, Direction direction) = 0;
    virtual void setSmartFraming(bool newSmartFraming, Direction direction) = 0;
    /// @param sw  0: off, otherwise in use
    virtual void setCameraSwitch(int sw) = 0;
};
