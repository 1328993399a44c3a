#include "platform/TrayKeys.h"

#include <qt_windows.h>

#include <shellapi.h>

#include <array>
#include <string_view>

namespace
{

/// Title of the hidden window with which Qt receives the messages of tray icons.
constexpr std::wstring_view TrayWindowTitle{L"QTrayIconMessageWindow"};

// All on the main thread.
HWND g_window = nullptr;
WNDPROC g_previous = nullptr;
bool g_isKeyPress = false;

bool isTrayKeyMessage(UINT message, LPARAM what)
{
    return message >= WM_APP && message <= 0xBFFF && LOWORD(what) == NIN_KEYSELECT;
}

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM place, LPARAM what)
{
    const bool before = g_isKeyPress; // a window that Qt shows can receive messages meanwhile
    g_isKeyPress = isTrayKeyMessage(message, what);
    const LRESULT result = CallWindowProcW(g_previous, window, message, place, what);
    g_isKeyPress = before;
    if (message == WM_NCDESTROY)
        g_window = nullptr;
    return result;
}

BOOL CALLBACK watchTrayWindow(HWND window, LPARAM)
{
    std::array<wchar_t, 64> title{};
    GetWindowTextW(window, title.data(), static_cast<int>(title.size()));
    if (TrayWindowTitle != title.data())
        return TRUE; // looks further
    g_window = window;
    g_previous = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC));
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(onMessage));
    return FALSE;
}

} // namespace

namespace platform
{

void watchTrayKeys()
{
    if (!g_window)
        EnumThreadWindows(GetCurrentThreadId(), watchTrayWindow, 0);
}

bool isTrayKeyPress()
{
    return g_isKeyPress;
}

} // namespace platform
