import QtQuick

// A line of text across the middle of a white panel.
LatoRegularLabel {
    anchors.horizontalCenter: parent?.horizontalCenter
    horizontalAlignment: Text.AlignHCenter
    font.pixelSize: Theme.bodyText
    color: Theme.panelText
}
