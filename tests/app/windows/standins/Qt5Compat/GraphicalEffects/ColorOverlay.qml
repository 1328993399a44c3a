import QtQuick

Item {
    property var source
    property color color
    property bool cached
}
