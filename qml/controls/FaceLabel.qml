import QtQuick

// A line of text across the middle of a face.
LatoRegularLabel {
    anchors.horizontalCenter: parent?.horizontalCenter
    horizontalAlignment: Text.AlignHCenter
    font.pixelSize: Theme.faceText
    color: Theme.textGrey
}
