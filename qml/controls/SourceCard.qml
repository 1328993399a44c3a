import QtQuick

// One of the two things that the display can show: 0 unavailable, 1 available, 2 selected.
ControlButton {
    id: card

    required property int value
    required property string title
    required property string text
    required property string greySource
    required property string greenSource
    readonly property bool available: value !== 0

    width: 420
    height: 260
    radius: 15
    color: available ? "#1a4fb857" : "#F5F5F5"
    enabled: available
    enterOpacity: 0.8
    pressedOpacity: 0.6
    accessibleName: title
    Accessible.description: text
    Accessible.selectable: true
    Accessible.selected: value === 2

    Image {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 30
        source: card.available ? card.greenSource : card.greySource
    }

    LatoBoldLabel {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 128
        text: card.title
        font.pixelSize: 21
        color: card.available ? "#FFFFFF" : "#6D6E71"
    }

    LatoRegularLabel {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 174
        text: card.text
        font.pixelSize: 16
        color: "#6D6E71"
        horizontalAlignment: Text.AlignHCenter
    }

    Rectangle {
        objectName: "selectedBar"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        width: 225
        height: 10
        color: "#4EB857"
        visible: card.value === 2
    }
}
