#pragma once

#include <QString>

#include <array>
#include <optional>

namespace platform
{

/// The fixed version numbers of an executable, most significant first.
struct FileVersions {
    std::array<quint16, 4> file{};
    std::array<quint16, 4> product{};
};

/// Version numbers of an executable, given by path or by a bare name that the system looks up
/// beginning with the program's folder. On Linux only the running program has any. Any thread.
[[nodiscard]] std::optional<FileVersions> fileVersions(const QString& path);

} // namespace platform
