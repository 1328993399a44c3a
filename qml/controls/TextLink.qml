import QtQuick

// A clickable line of text.
ControlButton {
    id: link

    property alias text: label.text
    property alias textColor: label.color
    property alias font: label.font

    width: Math.ceil(label.implicitWidth)
    height: Math.ceil(label.implicitHeight)
    cursorShape: Qt.PointingHandCursor
    Accessible.role: Accessible.Link

    ButtonLabel {
        id: label

        color: Theme.green
        font.pixelSize: Theme.noteText
    }
}
