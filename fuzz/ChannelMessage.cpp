#include "device/CameraReports.h"
#include "device/DealChannelMsg.h"
#include "device/DisplayReports.h"
#include "fuzz/FuzzSupport.h"

#include <QJsonDocument>

namespace
{

struct Display : DisplayReports {
    void setConnectMode(ConnectMode) override {}
    void setVolume(int volume, Direction) override
    {
        fuzz::require(volume >= 0 && volume <= 100, "the volume is 0 to 100");
    }
    void setByodSwitch(SourceState, Direction) override {}
    void setZoomSwitch(SourceState, Direction) override {}
    void setRemoteVer(const QString&) override {}
    void setVolumeReady(int) override {}
    void setShareStatusReady(int) override {}
    void setRemoteVerReady(int) override {}
};

struct Camera : CameraReports {
    void setAutoFraming(bool, Direction) override {}
    void setSmartFraming(bool, Direction) override {}
    void setCameraSwitch(int) override {}
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Display s_display;
    static Camera s_camera;
    static const DealChannelMsg s_parser(s_display, s_camera);
    const auto reply = s_parser.PraseJson(fuzz::bytes(data, size).toStdString());
    fuzz::require(!reply || QJsonDocument::fromJson(QByteArray::fromStdString(*reply)).isObject(),
                  "a reply is a JSON object");
    return 0;
}
