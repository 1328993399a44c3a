import QtQuick

// A horizontally centred line of text on a white panel.
LatoRegularLabel {
    anchors.horizontalCenter: parent?.horizontalCenter
    horizontalAlignment: Text.AlignHCenter
    font.pixelSize: Theme.bodyText
    color: Theme.panelText
}
