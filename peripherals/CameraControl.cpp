#include "peripherals/CameraControl.h"

#include "device/DealChannelMsg.h"
#include "logging/Log.h"

CameraControl::CameraControl(MessageChannel& channel, QObject* parent)
    : QObject(parent)
    , m_channel(channel)
{
}

void CameraControl::scale(int Key, int BtnStatus)
{
    DealChannelMsg::send(m_channel, "CameraControl::scale", ChannelCommand::CameraScale,
                         DealChannelMsg::buildCameraScale(Key, BtnStatus));
}

void CameraControl::preset(int PresetNum, int PresetStatus)
{
    DealChannelMsg::send(m_channel, "CameraControl::preset", ChannelCommand::CameraPreset,
                         DealChannelMsg::buildCameraPreset(PresetNum, PresetStatus));
}

void CameraControl::requestStatus()
{
    for (const auto query : {ChannelCommand::QueryAutoFraming, ChannelCommand::QuerySmartFraming,
                             ChannelCommand::CameraSwitch})
        DealChannelMsg::send(m_channel, "CameraControl::requestStatus", query,
                             DealChannelMsg::buildQuery(query));
}

void CameraControl::setAutoFraming(bool newAutoFraming, int direction)
{
    constexpr auto Function = "CameraControl::setAutoFraming";
    const bool old = m_autoFraming.exchange(newAutoFraming);
    if (old == newAutoFraming)
        return;
    Log::info(Function) << "direction:" << direction << ", m_autoFraming:" << old
                        << ", newAutoFraming:" << newAutoFraming;
    emit autoFramingChanged();
    if (direction != 0)
        return;

    DealChannelMsg::send(m_channel, Function, ChannelCommand::AutoFraming,
                         DealChannelMsg::buildAutoFraming(newAutoFraming));
    // The display forgets smart framing while automatic framing is off.
    if (newAutoFraming && m_smartFraming)
        DealChannelMsg::send(m_channel, Function, ChannelCommand::SmartFraming,
                             DealChannelMsg::buildSmartFraming(true));
}

void CameraControl::setSmartFraming(bool newSmartFraming, int direction)
{
    constexpr auto Function = "CameraControl::setSmartFraming";
    const bool old = m_smartFraming.exchange(newSmartFraming);
    if (old == newSmartFraming)
        return;
    Log::info(Function) << "direction:" << direction << ", m_smartFraming:" << old
                        << ", newSmartFraming:" << newSmartFraming;
    emit smartFramingChanged();
    if (direction != 0)
        return;

    DealChannelMsg::send(m_channel, Function, ChannelCommand::SmartFraming,
                         DealChannelMsg::buildSmartFraming(newSmartFraming));
}

void CameraControl::setCameraSwitch(int sw)
{
    Log::info("CameraControl::setCameraSwitch") << "camera switch:" << sw;
    emit cameraSwitch(sw);
}
