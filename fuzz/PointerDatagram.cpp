#include "device/PointerDatagram.h"
#include "fuzz/FuzzSupport.h"
#include "simulator/video/PointerEvent.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray datagram = fuzz::bytes(data, size);
    const auto event = simulator::parsePointerEvent(datagram);
    if (!event)
        return 0;
    const QByteArray again = pointerDatagram(quint8(event->type), float(event->position.x()),
                                             float(event->position.y()));
    const auto parsed = simulator::parsePointerEvent(again);
    fuzz::require(parsed && parsed->position == event->position, "an event survives the way back");
    return 0;
}
