import QtQuick

Item {
    property var source
    property color color
    property real radius
    property int samples
    property real spread
    property real horizontalOffset
    property real verticalOffset
    property bool cached
    property bool transparentBorder
}
