import QtQuick

// Button that launches a meeting application.
QuickButton {
    id: button

    property alias text: label.text

    width: 126
    height: 126
    radius: 25
    normalColor: "#0DECF3F8"
    hoverColor: "#2DECF3F8"
    pressedColor: "#4DECF3F8"

    ButtonLabel {
        id: label

        anchors.centerIn: parent
        font.pixelSize: Theme.headingText
        color: Theme.textGrey
    }
}
