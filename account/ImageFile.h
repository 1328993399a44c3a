#pragma once

#include <QByteArray>
#include <QString>

/// Picture files as the pages name them: a file URL from a file dialog, a resource URL, or a path.
///
/// Nothing here trusts the file: it may be no picture, be cut short, be a pipe or a folder, declare
/// an absurd size, or be gone since it was chosen. All of that is a failure, never a hang.
namespace ImageFile
{

/// Largest decoded picture, in bytes at 4 a pixel; larger ones are refused before any pixel is
/// decoded.
inline constexpr qint64 kMaxDecodedSize = 128LL * 1024 * 1024;
/// Largest file that is opened as a picture, in bytes.
inline constexpr qint64 kMaxFileSize = 128LL * 1024 * 1024;

/// Turns a file URL ("file:///...", "file://host/...") or a resource URL ("qrc:/...") into the path
/// it names; anything else is a path already and comes back unchanged. Escapes such as "%20" are
/// resolved in file URLs only. A path with a drive letter comes out without a leading slash on
/// every system.
[[nodiscard]] QString normaliseImagePath(const QString& imagePath);

/// Size in bytes of the file at a normalised path; 0 when there is none.
[[nodiscard]] qint64 size(const QString& path);

/// Outcome of encode().
struct Encoded {
    enum class Status { Ok, NotLoaded, NotEncoded };
    Status status = Status::NotLoaded;
    QByteArray bytes; ///< the encoded picture, empty unless Ok
};

/// Loads the picture at a normalised path, its format told from its content, and encodes it anew:
/// as JPEG where the path ends in ".jpg" or ".jpeg" (any case), otherwise as PNG.
[[nodiscard]] Encoded encode(const QString& path);

} // namespace ImageFile
