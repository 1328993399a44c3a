import QtQuick
import "controls"
import "pages"

// The program's one top-level window: frameless, with title buttons of its own. Closing hides it.
Window {
    id: mainWindow

    // The monitor window while one exists.
    property Window monitorWindow: null
    // The window is on its way to the screen.
    property bool placed: false
    // The first frame has been on the screen.
    property bool shown: false

    readonly property var device: deviceControl // qmllint disable unqualified
    readonly property var windows: windowManager // qmllint disable unqualified

    function showAndRaise(): void {
        if (monitorWindow !== null && monitorWindow.visibility !== Window.Minimized) {
            monitorWindow.raise();
            monitorWindow.requestActivate();
            return;
        }
        mainWindow.visibility = Window.Windowed;
        mainWindow.visible = true;
        // Staying on top for one turn of the event loop brings the window before those of other
        // programs.
        mainWindow.flags |= Qt.WindowStaysOnTopHint;
        mainWindow.raise();
        mainWindow.requestActivate();
        Qt.callLater(dropStayOnTop);
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

    Component.onCompleted: {
        placed = true; // first: raising waits for the system, which is busy with the window
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

    // A frame without a shadow and with a small radius: minimising would bring back a title bar
    // otherwise.
    Rectangle {
        anchors.fill: parent
        color: Theme.windowColor
        radius: Theme.windowRadius

        MouseArea {
            property point pressPoint
            property point windowPoint

            anchors.fill: parent
            // Positions on the screen: those in the window lag behind while it moves, and it would jump.
            onPressed: mouse => {
                pressPoint = mapToGlobal(mouse.x, mouse.y);
                windowPoint = Qt.point(mainWindow.x, mainWindow.y);
            }
            onPositionChanged: {
                const cursor = mainWindow.windows.cursorPosition();
                mainWindow.x = windowPoint.x + cursor.x - pressPoint.x;
                mainWindow.y = windowPoint.y + cursor.y - pressPoint.y;
            }
        }

        // Made while the system brings up the window.
        Loader {
            anchors.fill: parent
            active: mainWindow.placed
            visible: !mainWindow.device.login
            sourceComponent: LoginPage {}
        }

        // To a user who has to sign in first it comes after the window is there. By its file's name, since
        // a component would have all the pages behind it read with this file.
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
                accessibleName: qsTr("Minimise")
                source: "qrc:/images/minimize_30x120.png"
                onClicked: mainWindow.showMinimized()
            }

            TitleButton {
                accessibleName: qsTr("Close")
                source: "qrc:/images/close_30x120.png"
                onClicked: mainWindow.windows.hideToTray()
            }
        }
    }
}
