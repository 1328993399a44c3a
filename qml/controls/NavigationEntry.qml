import QtQuick

// One entry of the main page's navigation column.
QuickButton {
    id: entry

    required property bool current
    property alias icon: iconImage.source
    property alias text: label.text

    width: 168
    height: 36
    radius: Theme.pillRadius
    normalColor: current ? Theme.buttonGreen : "transparent"
    hoverColor: current ? Theme.buttonGreen : "#404DAF4E"
    pressedColor: current ? Theme.buttonGreen : "#804DAF4E"
    Accessible.role: Accessible.ListItem
    Accessible.selectable: true
    Accessible.selected: current

    Image {
        id: iconImage

        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
    }

    ButtonLabel {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: 40
        anchors.verticalCenter: parent.verticalCenter
        maximumWidth: parent.width - anchors.leftMargin - 10
        maximumHeight: parent.height - 2
        font.pixelSize: Theme.bodyText
        font.weight: Font.Medium
    }
}
