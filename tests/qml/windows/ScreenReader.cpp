#include "ScreenReader.h"

#include <QWindow>

#include <qt_windows.h>

#include <uiautomation.h>

// Qt switches accessibility on when a window is asked for its object.
void actAsScreenReader(QObject* /*owner*/)
{
    QWindow window;
    window.create();
    SendMessageW(reinterpret_cast<HWND>(window.winId()), WM_GETOBJECT, 0, UiaRootObjectId);
}
