#include "portalhub/MessageLine.h"
#include "fuzz/FuzzSupport.h"
#include "portalhub/LineReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr qsizetype MaxLength = 64; // short, so that overlong lines occur
    constexpr qsizetype PieceSize = 7;
    const QByteArray stream = fuzz::bytes(data, size);
    channel::LineReader reader(MaxLength);
    for (qsizetype at = 0; at < stream.size(); at += PieceSize) {
        reader.append(stream.mid(at, PieceSize));
        while (const auto line = reader.next()) {
            fuzz::require(line->size() <= MaxLength && !line->contains('\n'), "a line is a line");
            const auto message = channel::parseLine(*line);
            if (!message)
                continue;
            const QByteArray again = channel::encodeLine(
                message->id, {message->text.constData(), std::size_t(message->text.size())});
            const auto parsed = channel::parseLine(QByteArrayView(again).chopped(1));
            fuzz::require(parsed && parsed->id == message->id, "a line survives the way back");
        }
    }
    return 0;
}
