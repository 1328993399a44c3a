#include "account/ReplyBody.h"
#include "fuzz/FuzzSupport.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const ReplyBody reply = decodeReplyBody(fuzz::bytes(data, size));
    const bool isObject =
        reply.kind == ReplyBody::Kind::Success || reply.kind == ReplyBody::Kind::Refused;
    fuzz::require(isObject || reply.object.isEmpty(), "only an object is passed on");
    fuzz::require((reply.kind == ReplyBody::Kind::NotJson) == !reply.parseError.isEmpty(),
                  "invalid JSON has a reason");
    return 0;
}
