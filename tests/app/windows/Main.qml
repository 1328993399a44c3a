// qmllint disable unqualified
import QtQuick

// Replaces the program's pages in tests on a Windows build of Qt that lacks modules of the pages.
Window {
    id: window

    width: 968
    height: 666
    visible: true
    title: "VORNApp"

    Connections {
        target: windowManager

        function onRequestShow(show: bool): void {
            window.visible = show;
        }
    }

    Text {
        anchors.centerIn: parent
        text: deviceControl.volume
    }
}
