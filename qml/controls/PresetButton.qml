import QtQuick

// Button for a camera preset.
QuickButton {
    property alias text: label.text
    // A value of CameraControl.PresetNumber.
    property int number: 0

    width: 86
    height: 36
    radius: 8
    normalColor: Theme.padGrey
    hoverColor: "#20BBC7CE"
    pressedColor: "#40BBC7CE"

    CenteredLabel {
        id: label

        font.pixelSize: Theme.noteText
    }
}
