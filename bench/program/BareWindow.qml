import QtQuick
import QtQuick.Controls.Basic
import Qt5Compat.GraphicalEffects
import QtMultimedia
import QtQuick.Dialogs

Window {
    width: 968
    height: 666
    visible: true
    flags: Qt.Window | Qt.FramelessWindowHint
    color: "#282828"

    Label {
        anchors.centerIn: parent
        color: "white"
        text: "A window, and nothing behind it"
    }

    Timer {
        interval: 1000
        repeat: true
        running: true
    }
}
