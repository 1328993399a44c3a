import QtQuick
import "../controls"

// A caption and its value in the profile.
Item {
    property alias caption: captionLabel.text
    property alias value: valueLabel.text

    width: 337
    height: captionLabel.height

    FittedLabel {
        id: captionLabel

        anchors.left: parent.left
        maximumWidth: 186 - 16
        maximumHeight: Math.ceil(1.2 * font.pixelSize) // one line, like the value
        font.pixelSize: Theme.bodyText
        color: Theme.textGrey
    }

    LatoRegularLabel {
        id: valueLabel

        anchors.left: parent.left
        anchors.leftMargin: 186
        width: parent.width - anchors.leftMargin
        elide: Text.ElideRight
        font.pixelSize: Theme.bodyText
    }
}
