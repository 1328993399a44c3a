#include "platform/windows/SystemTools.h"

#include "platform/Registry.h"

#include <QVariant>

#include <qt_windows.h>

#include <array>
#include <string>

using namespace Qt::StringLiterals;

namespace
{

/// The system's OEM code page. GetOEMCP() would return UTF-8 because of our manifest.
UINT systemCodePage()
{
    static const UINT s_page = [] {
        const UINT page =
            platform::readRegistry(
                u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Nls\\CodePage"_s,
                u"OEMCP"_s)
                .toUInt();
        return page != 0 ? page : ::GetOEMCP();
    }();
    return s_page;
}

} // namespace

namespace platform
{

QString systemTool(const QString& path)
{
    std::array<wchar_t, MAX_PATH> folder{};
    GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    return QString::fromWCharArray(folder.data()) + u'\\' + path;
}

QString toolOutput(const QByteArray& text)
{
    const int length = static_cast<int>(text.size());
    const auto convert = [&](wchar_t* target, int room) {
        return ::MultiByteToWideChar(systemCodePage(), 0, text.constData(), length, target, room);
    };
    std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
    convert(wide.data(), static_cast<int>(wide.size()));
    return QString::fromStdWString(wide);
}

} // namespace platform
