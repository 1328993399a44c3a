import QtQuick

// One entry of the main page's navigation column.
QuickButton {
    id: entry

    required property bool current
    property alias icon: iconImage.source
    property alias text: label.text

    width: 168
    height: 36
    radius: 18
    normalColor: current ? "#4DAF4E" : "transparent"
    hoverColor: current ? "#4DAF4E" : "#404DAF4E"
    pressedColor: current ? "#4DAF4E" : "#804DAF4E"
    Accessible.selectable: true
    Accessible.selected: current

    Image {
        id: iconImage

        x: 12
        anchors.verticalCenter: parent.verticalCenter
    }

    LatoRegularLabel {
        id: label

        x: 40
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 16
        font.weight: Font.Medium
    }
}
