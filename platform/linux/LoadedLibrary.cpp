#include "platform/LoadedLibrary.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace platform
{

QString loadedLibrary(const void* address)
{
    Dl_info info{};
    if (::dladdr(address, &info) == 0 || !info.dli_fname)
        return {};
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath();
}

} // namespace platform
