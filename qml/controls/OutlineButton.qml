import QtQuick

// A button that consists of an outline and a text.
QuickButton {
    id: button

    property alias text: label.text
    property alias textSize: label.font.pixelSize
    property color outlineColor: "#B0B5C4"

    width: 100
    height: 36
    radius: Theme.pillRadius
    normalColor: "transparent"
    hoverColor: "#20B0B5C4"
    pressedColor: "#40B0B5C4"
    border.width: 1
    border.color: outlineColor

    CenteredLabel {
        id: label

        color: button.outlineColor
    }
}
