import QtQuick

// A clickable line of text.
ControlButton {
    id: link

    property alias text: label.text
    property alias textColor: label.color
    property alias font: label.font
    property alias maximumWidth: label.maximumWidth
    property alias maximumHeight: label.maximumHeight

    width: Math.ceil(label.width)
    height: Math.ceil(label.height)
    cursorShape: Qt.PointingHandCursor
    Accessible.role: Accessible.Link

    ButtonLabel {
        id: label

        color: Theme.green
        font.pixelSize: Theme.noteText
    }
}
