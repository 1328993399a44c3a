import QtQuick
import "controls"
import "pages"

// The main window. It is frameless and draws its own title buttons; closing hides it to the tray.
Window {
    id: mainWindow

    // The monitor window while one exists.
    property Window monitorWindow: null
    // True once the window is complete and about to be mapped.
    property bool placed: false
    // True once the first frame was shown.
    property bool shown: false

    readonly property var device: deviceControl // qmllint disable unqualified
    readonly property var windows: windowManager // qmllint disable unqualified

    function showAndRaise(): void {
        if (monitorWindow !== null && monitorWindow.visibility !== Window.Minimized) {
            monitorWindow.raise();
            monitorWindow.requestActivate();
            return;
        }
        // The system chooses the first place, unless the window does not fit.
        if (mainWindow.shown || mainWindow.width > Screen.width || mainWindow.height > Screen.height)
            mainWindow.keepReachable();
        mainWindow.visibility = Window.Windowed;
        mainWindow.visible = true;
        // Staying on top for one turn of the event loop forces the window in front of those of other
        // programs.
        mainWindow.flags |= Qt.WindowStaysOnTopHint;
        mainWindow.raise();
        mainWindow.requestActivate();
        Qt.callLater(dropStayOnTop);
    }

    // Length of the part of a span that lies between two positions.
    function partBetween(start: real, length: real, from: real, to: real): real {
        return Math.max(0, Math.min(start + length, to) - Math.max(start, from));
    }

    // Moves the window onto a screen when less than half of it can be seen, as after its screen was unplugged. Of a
    // window that is larger than the screen the title buttons stay visible.
    function keepReachable(): void {
        const areas = Array.from(Application.screens, screen => Qt.rect(screen.virtualX, screen.virtualY,
                                                                        screen.width, screen.height));
        const visiblePart = area => partBetween(mainWindow.x, mainWindow.width, area.left, area.right)
                                    * partBetween(mainWindow.y, mainWindow.height, area.top, area.bottom);
        const area = areas.reduce((best, next) => visiblePart(next) > visiblePart(best) ? next : best);
        const fits = mainWindow.width <= area.width && mainWindow.height <= area.height;
        if (fits && visiblePart(area) >= mainWindow.width * mainWindow.height / 2)
            return;
        mainWindow.x = Math.min(Math.max(mainWindow.x, area.left), area.right - mainWindow.width);
        mainWindow.y = Math.max(Math.min(mainWindow.y, area.bottom - mainWindow.height), area.top);
    }

    function dropStayOnTop(): void {
        mainWindow.flags &= ~Qt.WindowStaysOnTopHint;
    }

    width: 968
    height: 666
    visible: true
    visibility: Window.Windowed
    color: "transparent"
    flags: Qt.Window | Qt.FramelessWindowHint
    title: "VORNApp"
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true

    Component.onCompleted: {
        placed = true; // before raising, which blocks until the system has created the window
        showAndRaise();
    }
    onFrameSwapped: shown = true
    onClosing: close => {
        close.accepted = false;
        mainWindow.windows.hideToTray();
    }

    Connections {
        target: mainWindow.windows

        function onRequestShow(show: bool): void {
            if (show)
                mainWindow.showAndRaise();
            else
                mainWindow.hide();
        }
    }

    // Without a shadow and with a small radius: minimising would bring back the system's title bar otherwise.
    Rectangle {
        anchors.fill: parent
        color: Theme.windowColor
        radius: Theme.windowRadius

        MouseArea {
            property point pressPoint
            property point windowPoint

            anchors.fill: parent
            // Screen positions, since window positions lag behind while the window moves and make it jump.
            onPressed: mouse => {
                pressPoint = mapToGlobal(mouse.x, mouse.y);
                windowPoint = Qt.point(mainWindow.x, mainWindow.y);
            }
            onPositionChanged: {
                if (mainWindow.windows.systemMovesWindows()) {
                    mainWindow.startSystemMove();
                    return;
                }
                const cursor = mainWindow.windows.cursorPosition();
                mainWindow.x = windowPoint.x + cursor.x - pressPoint.x;
                mainWindow.y = windowPoint.y + cursor.y - pressPoint.y;
            }
        }

        // Created while the system maps the window.
        Loader {
            anchors.fill: parent
            active: mainWindow.placed
            visible: !mainWindow.device.login
            sourceComponent: LoginPage {}
        }

        // Loaded after the first frame when sign-in comes first. By URL, so that its imports are not compiled
        // with this file.
        Loader {
            anchors.fill: parent
            active: mainWindow.placed && mainWindow.device.login || mainWindow.shown
            visible: mainWindow.device.login
            source: "pages/MainPage.qml"
        }

        Row {
            anchors.top: parent.top
            anchors.topMargin: 6
            anchors.right: parent.right
            anchors.rightMargin: 10
            spacing: 8

            TitleButton {
                //: Button of the window, for screen readers.
                accessibleName: qsTr("Minimise")
                source: "qrc:/images/minimize_30x120.png"
                onClicked: mainWindow.showMinimized()
            }

            TitleButton {
                //: Button of the window, for screen readers: hides it to the tray.
                accessibleName: qsTr("Close")
                source: "qrc:/images/close_30x120.png"
                onClicked: mainWindow.windows.hideToTray()
            }
        }
    }
}
