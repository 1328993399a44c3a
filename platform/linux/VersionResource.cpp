#include "platform/VersionResource.h"

#include <QFileInfo>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::array<quint16, 4> CompiledVersion{VORN_VERSION_NUMBERS};

bool isRunningProgram(const QString& path)
{
    const QString self = QFileInfo(u"/proc/self/exe"_s).canonicalFilePath();
    if (path.contains(u'/'))
        return !self.isEmpty() && QFileInfo(path).canonicalFilePath() == self;
    // A bare name matches the name the program was started under or the name of its file.
    return path == QFile::decodeName(program_invocation_short_name) ||
           path == QFileInfo(self).fileName();
}

} // namespace

namespace platform
{

std::optional<FileVersions> fileVersions(const QString& path)
{
    if (!isRunningProgram(path))
        return std::nullopt;
    return FileVersions{CompiledVersion, CompiledVersion};
}

} // namespace platform
