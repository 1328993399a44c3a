import QtQuick

// The one button of a face.
QuickButton {
    id: button

    property alias text: label.text

    anchors.horizontalCenter: parent?.horizontalCenter
    height: 36
    radius: 18

    LatoRegularLabel {
        id: label

        anchors.centerIn: parent
        font.pixelSize: 16
    }
}
