// qmllint disable unqualified
import QtQuick

// Stands for the program's pages, so that all the rest of it can be tested with a Windows build of Qt
// that lacks modules which the pages need.
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
