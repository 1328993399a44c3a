import QtQuick

// Page indicator: a dot with a ring while its face is shown.
Rectangle {
    required property bool current

    width: 14
    height: 14
    radius: 7
    color: current ? "#33FFFFFF" : "transparent"

    Rectangle {
        anchors.centerIn: parent
        width: 8
        height: 8
        radius: 4
        color: "#CCFFFFFF"
    }
}
