#include "platform/FileSync.h"

#include <QDir>

#include <windows.h>

bool platform::syncFile(const QString& path)
{
    const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
    const HANDLE file = ::CreateFileW(name.c_str(), GENERIC_WRITE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    const bool isFlushed = ::FlushFileBuffers(file) != 0; // writes the entry of the folder too
    ::CloseHandle(file);
    return isFlushed;
}
