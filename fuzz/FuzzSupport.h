#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstddef>
#include <cstdint>

/// Tools shared by the fuzzers. The library also turns off the log and Qt's messages at the start.
namespace fuzz
{

inline QByteArray bytes(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), qsizetype(size)};
}

/// Ends the process, so that the fuzzer records the input, if @p isMet is false.
void require(bool isMet, const char* what);

/// Path of a file in a temporary folder that is removed at the end of the process.
QString temporaryFile(const QString& name);

/// Writes a file. Ends the process on failure.
void write(const QString& path, QByteArrayView content);

} // namespace fuzz
