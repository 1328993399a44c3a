import QtQuick

// The outlined frame of a page's content.
Rectangle {
    anchors.left: parent?.left
    y: 94
    width: 603
    height: 477
    color: "transparent"
    border.width: 1
    border.color: "#904A5D5E"
    radius: 21
}
