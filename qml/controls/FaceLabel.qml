import QtQuick

// A horizontally centred line of text on a face.
LatoRegularLabel {
    anchors.horizontalCenter: parent?.horizontalCenter
    horizontalAlignment: Text.AlignHCenter
    font.pixelSize: Theme.faceText
    color: Theme.textGrey
    Accessible.role: Accessible.Heading
}
