#include "peripherals/CameraControl.h"

#include "device/DealChannelMsg.h"
#include "device/MessageChannel.h"
#include "logging/Log.h"

CameraControl::CameraControl(MessageChannel& channel, QObject* parent)
    : QObject(parent)
    , m_channel(channel)
{
}

CameraControl::~CameraControl()
{
    releaseMovements();
}

void CameraControl::scale(int Key, int BtnStatus)
{
    {
        const std::scoped_lock lock(m_mutex);
        if (BtnStatus == Btn_Down)
            m_held.insert(Key);
        else
            m_held.erase(Key);
    }
    m_channel.send("CameraControl::scale", DealChannelMsg::buildCameraScale(Key, BtnStatus));
}

void CameraControl::releaseMovements()
{
    std::set<int> held;
    {
        const std::scoped_lock lock(m_mutex);
        held.swap(m_held);
    }
    for (const int key : held)
        scale(key, Btn_Up);
}

void CameraControl::preset(int PresetNum, int PresetStatus)
{
    m_channel.send("CameraControl::preset",
                   DealChannelMsg::buildCameraPreset(PresetNum, PresetStatus));
}

void CameraControl::requestStatus()
{
    for (const auto query : {ChannelCommand::QueryAutoFraming, ChannelCommand::QuerySmartFraming,
                             ChannelCommand::CameraSwitch})
        m_channel.send("CameraControl::requestStatus", DealChannelMsg::buildQuery(query));
}

void CameraControl::setAutoFraming(bool newAutoFraming, Direction direction)
{
    constexpr auto Function = "CameraControl::setAutoFraming";
    const bool old = m_autoFraming.exchange(newAutoFraming);
    if (old == newAutoFraming)
        return;
    Log::info(Function) << "direction:" << static_cast<int>(direction) << ", m_autoFraming:" << old
                        << ", newAutoFraming:" << newAutoFraming;
    emit autoFramingChanged();
    if (direction != Direction::FromProgram)
        return;

    m_channel.send(Function, DealChannelMsg::buildAutoFraming(newAutoFraming));
    // The display leaves smart framing when automatic framing is switched off.
    if (newAutoFraming && m_smartFraming)
        m_channel.send(Function, DealChannelMsg::buildSmartFraming(true));
}

void CameraControl::setSmartFraming(bool newSmartFraming, Direction direction)
{
    constexpr auto Function = "CameraControl::setSmartFraming";
    const bool old = m_smartFraming.exchange(newSmartFraming);
    if (old == newSmartFraming)
        return;
    Log::info(Function) << "direction:" << static_cast<int>(direction) << ", m_smartFraming:" << old
                        << ", newSmartFraming:" << newSmartFraming;
    emit smartFramingChanged();
    if (direction != Direction::FromProgram)
        return;

    m_channel.send(Function, DealChannelMsg::buildSmartFraming(newSmartFraming));
}

void CameraControl::setCameraSwitch(int sw)
{
    Log::info("CameraControl::setCameraSwitch") << "camera switch:" << sw;
    emit cameraSwitch(sw);
}
