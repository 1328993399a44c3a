import QtQuick

// Card for a source of the display. `value` is 0 unavailable, 1 available or 2 selected.
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
    radius: Theme.panelRadius
    color: available ? "#1a4fb857" : Theme.trackGrey
    enabled: available
    enterOpacity: 0.8
    pressedOpacity: 0.6
    accessibleName: title
    Accessible.description: text
    Accessible.role: Accessible.ListItem
    Accessible.selectable: true
    Accessible.selected: value === 2

    Image {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 30
        source: card.available ? card.greenSource : card.greySource
    }

    ButtonLabel {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 128
        maximumWidth: card.width - 32
        maximumHeight: 40
        text: card.title
        font.pixelSize: Theme.headingText
        font.weight: Font.Bold
        color: card.available ? Theme.white : Theme.mutedText
    }

    ButtonLabel {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 174
        maximumWidth: card.width - 33
        maximumHeight: 66
        text: card.text
        font.pixelSize: Theme.bodyText
        lineHeight: Theme.lineSpacing
        color: Theme.mutedText
        horizontalAlignment: Text.AlignHCenter
    }

    Rectangle {
        objectName: "selectedBar"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        width: 225
        height: 10
        color: Theme.switchGreen
        visible: card.value === 2
    }
}
