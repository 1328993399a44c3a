#include "platform/LoadedLibrary.h"

#include <QDir>
#include <QFileInfo>

#include <qt_windows.h>

#include <vector>

namespace platform
{

QString loadedLibrary(const void* address)
{
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            static_cast<const wchar_t*>(address), &module))
        return {};
    std::vector<wchar_t> path(MAX_PATH);
    DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) { // cut off
        path.resize(2 * path.size());
        length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    }
    const QFileInfo file(QString::fromWCharArray(path.data(), static_cast<qsizetype>(length)));
    return QDir::toNativeSeparators(file.canonicalFilePath());
}

} // namespace platform
