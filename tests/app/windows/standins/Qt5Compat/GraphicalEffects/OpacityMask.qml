import QtQuick

Item {
    property var source
    property var maskSource
    property bool cached
    property bool invert
}
