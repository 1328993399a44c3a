import QtQuick

// The text in the middle of a button.
ButtonLabel {
    anchors.centerIn: parent
    maximumWidth: (parent?.width ?? 0) - 16
    maximumHeight: (parent?.height ?? 0) - 2
    horizontalAlignment: Text.AlignHCenter
    font.pixelSize: Theme.bodyText
}
