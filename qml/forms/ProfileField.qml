import QtQuick
import "../controls"

// A profile field with its caption above.
QuickTextField {
    id: field

    property alias caption: captionLabel.text

    width: 218
    height: 36
    accessibleName: caption

    ButtonLabel {
        id: captionLabel

        anchors.left: parent.left
        y: -27
        maximumWidth: field.width
        maximumHeight: 26
        font.pixelSize: Theme.bodyText
        color: Theme.textGrey
    }
}
