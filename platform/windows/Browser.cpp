#include "platform/Browser.h"

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>

#include <cstdint>

namespace platform
{

bool openInBrowser(const QUrl& address)
{
    if (!address.isValid() || address.scheme().isEmpty())
        return false;
    // Handlers of a scheme may be COM objects.
    const HRESULT initialised =
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    const QString text = address.toString(QUrl::FullyEncoded);
    const HINSTANCE result =
        ShellExecuteW(nullptr, L"open", reinterpret_cast<const wchar_t*>(text.utf16()), nullptr,
                      nullptr, SW_SHOWNORMAL);
    if (SUCCEEDED(initialised))
        CoUninitialize();
    constexpr std::intptr_t LargestError = 32;
    return reinterpret_cast<std::intptr_t>(result) > LargestError;
}

} // namespace platform
