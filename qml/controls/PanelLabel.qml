import QtQuick

// A horizontally centred line of text on a white panel.
FittedLabel {
    anchors.horizontalCenter: parent?.horizontalCenter
    maximumWidth: (parent?.width ?? 0) - 40
    maximumHeight: 2.5 * font.pixelSize
    horizontalAlignment: Text.AlignHCenter
    font.pixelSize: Theme.bodyText
    lineHeight: Theme.lineSpacing
    color: Theme.panelText
}
