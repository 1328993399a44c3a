#include "platform/VersionResource.h"

#include <qt_windows.h>

#include <vector>

namespace
{

std::array<quint16, 4> versionNumbers(DWORD high, DWORD low)
{
    return {HIWORD(high), LOWORD(high), HIWORD(low), LOWORD(low)};
}

} // namespace

namespace platform
{

std::optional<FileVersions> fileVersions(const QString& path)
{
    const auto* const name = reinterpret_cast<const wchar_t*>(path.utf16());
    const DWORD size = GetFileVersionInfoSizeW(name, nullptr);
    if (size == 0)
        return std::nullopt;
    std::vector<std::byte> resource(size);
    if (!GetFileVersionInfoW(name, 0, size, resource.data()))
        return std::nullopt;

    void* value = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(resource.data(), L"\\", &value, &length) ||
        length < sizeof(VS_FIXEDFILEINFO))
        return std::nullopt;
    const auto* const info = static_cast<const VS_FIXEDFILEINFO*>(value);
    return FileVersions{versionNumbers(info->dwFileVersionMS, info->dwFileVersionLS),
                        versionNumbers(info->dwProductVersionMS, info->dwProductVersionLS)};
}

} // namespace platform
