import QtQuick
import "controls"
import "pages"

// The main window. It is frameless and draws its own title buttons; closing hides it to the tray.
Window {
    id: mainWindow

    // The monitor window while one exists.
    property Window monitorWindow: null
    // Set by the program when it knows the system's setting.
    property bool reducedMotion: false
    // True once the window is complete and about to be mapped.
    property bool placed: false
    // True once the first frame was shown.
    property bool shown: false

    readonly property var device: deviceControl // qmllint disable unqualified
    readonly property var windows: windowManager // qmllint disable unqualified
    readonly property var place: windowPlace // qmllint disable unqualified

    function showAndRaise(): void {
        if (monitorWindow !== null && monitorWindow.visibility !== Window.Minimized) {
            monitorWindow.raise();
            monitorWindow.requestActivate();
            return;
        }
        mainWindow.place.settle();
        mainWindow.showNormal();
        // Staying on top for one turn of the event loop forces the window in front of those of other
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
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true

    Component.onCompleted: {
        mainWindow.place.manage(mainWindow, Qt.size(mainWindow.width, mainWindow.height));
        placed = true; // before raising, which blocks until the system has created the window
        showAndRaise();
    }
    onFrameSwapped: shown = true
    onReducedMotionChanged: Theme.reducedMotion = reducedMotion
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
        width: 968
        height: 666
        transformOrigin: Item.TopLeft
        scale: mainWindow.place.fit
        color: Theme.windowColor
        radius: Theme.windowRadius

        MouseArea {
            anchors.fill: parent
            onPressed: mouse => mainWindow.place.grab(mapToItem(null, mouse.x, mouse.y))
            onPositionChanged: mainWindow.place.drag()
            onReleased: mainWindow.place.drop()
            onCanceled: mainWindow.place.drop()
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
