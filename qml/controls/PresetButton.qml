import QtQuick

// A button of the presets: a dim face with a text.
QuickButton {
    property alias text: label.text
    // The preset that it stands for.
    property int number: 0

    width: 86
    height: 36
    radius: 8
    normalColor: Theme.padGrey
    hoverColor: "#20BBC7CE"
    pressedColor: "#40BBC7CE"

    LatoRegularLabel {
        id: label

        anchors.centerIn: parent
        font.pixelSize: Theme.noteText
    }
}
