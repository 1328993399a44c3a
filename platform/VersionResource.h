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

/// Version numbers of an executable. `path` is a path or a bare name, which the system looks up in
/// the program's folder first. On Linux only the running program has version numbers. Any thread.
[[nodiscard]] std::optional<FileVersions> fileVersions(const QString& path);

} // namespace platform
