#pragma once

#include <QByteArray>
#include <QString>

/// Picture files, named by a file URL from a file dialog, a resource URL, or a path.
///
/// The file is not trusted: it may be no picture, truncated, a pipe or a folder, declare an absurd
/// size, or have been removed since it was chosen. Each of these is a failure, never a hang.
namespace ImageFile
{

/// A picture with more pixels is scaled down when it is read.
inline constexpr qint64 MaxPixels = 4'000'000;
/// A picture with more pixels is refused, as reading it takes many seconds.
inline constexpr qint64 MaxSourcePixels = 256'000'000;
/// Most memory that decoding a picture may take beside the result, in bytes. Large pictures stay
/// below it if their format can be scaled down while it is read: JPEG files with the data in one
/// pass, and, with a Qt that scales them, PNG files with 8 bits a colour.
inline constexpr qint64 MaxDecodedSize = 48LL * 1024 * 1024;
/// Largest file that is opened as a picture, in bytes.
inline constexpr qint64 MaxFileSize = 128LL * 1024 * 1024;

/// Path that a file URL ("file:///", "file://host/") or a resource URL ("qrc:/") names; any other
/// text is a path and is returned unchanged. Escapes such as "%20" are resolved in file URLs only.
/// A path with a drive letter has no leading slash on any system.
[[nodiscard]] QString normaliseImagePath(const QString& imagePath);

/// Size in bytes of the file at a normalised path; 0 when there is none.
[[nodiscard]] qint64 size(const QString& path);

/// Whether the file at a normalised path is a picture that encode() accepts, as far as its head
/// shows.
[[nodiscard]] bool isPicture(const QString& path);

/// Whether a picture may be decoded, as far as its head shows: false for one that encode() would
/// refuse for its size, and for a drawing. True for bytes that are no picture, which cost nothing.
[[nodiscard]] bool isAffordable(QByteArray bytes);

/// Result of encode().
struct Encoded {
    enum class Status { Ok, NotLoaded, NotEncoded };
    Status status = Status::NotLoaded;
    QByteArray bytes; ///< the encoded picture, empty unless Ok
};

/// Loads the picture at a normalised path, detecting its format from the content, and encodes it
/// as JPEG if the path ends in ".jpg" or ".jpeg" (any case), otherwise as PNG. The orientation that
/// a camera noted in the file is applied. Any thread.
[[nodiscard]] Encoded encode(const QString& path);

} // namespace ImageFile
