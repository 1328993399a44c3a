import QtQuick

// A button on a white panel.
QuickButton {
    id: button

    property alias text: label.text
    property alias textColor: label.color

    width: 124
    height: 36
    radius: Theme.panelButtonRadius
    normalColor: Theme.switchGreen
    focusColor: Theme.focusOnWhite
    hoverColor: Qt.darker(normalColor, 1.3)
    pressedColor: Qt.darker(normalColor, 1.6)

    CenteredLabel {
        id: label

        font.weight: Font.Bold
    }
}
