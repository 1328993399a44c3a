#include "fuzz/FuzzSupport.h"
#include "persistence/FileInfo.h"

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QString s_path = fuzz::temporaryFile(u"config.ini"_s);
    fuzz::write(s_path, fuzz::bytes(data, size));
    const FileInfo config(s_path);
    fuzz::require(config.useRemoteDeviceInterval() > 0, "the interval is above 0");
    fuzz::require(!config.serverUrl().isEmpty(), "there is a server address");
    return 0;
}
