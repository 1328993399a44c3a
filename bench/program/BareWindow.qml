import QtQuick
import QtQuick.Controls.Basic
import Qt5Compat.GraphicalEffects // qmllint disable unused-imports
import QtMultimedia // qmllint disable unused-imports
import QtQuick.Dialogs // qmllint disable unused-imports

// The baseline of the benchmarks: a window that loads the same modules as the program and shows nothing.
Window {
    width: 968
    height: 666
    visible: true
    flags: Qt.Window | Qt.FramelessWindowHint
    color: "#282828"

    Label {
        anchors.centerIn: parent
        color: "white"
        text: "Bare window"
    }

    Timer {
        interval: 1000
        repeat: true
        running: true
    }
}
