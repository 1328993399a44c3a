import QtQuick

// The user's picture and first name. The ring shows that the profile page is open.
ControlButton {
    id: button

    required property bool current
    property alias imageSource: picture.imageSource
    property alias text: label.text
    // Limit of the button's width; a longer name is elided.
    property real maximumWidth: 208

    width: ring.width + (text !== "" ? 16 + label.width : 0)
    height: ring.height
    Accessible.selectable: true
    Accessible.selected: current
    //: Name of the button with the picture, for screen readers. %1 is the first name.
    accessibleName: text !== "" ? qsTr("Profile of %1").arg(text) : qsTr("Profile")

    Rectangle {
        id: ring

        anchors.left: parent.left
        width: 52
        height: 52
        radius: 26
        color: "transparent"
        border.width: 2
        border.color: button.current ? Theme.green : "transparent"

        CircularImage {
            id: picture

            anchors.centerIn: parent
            width: 48
        }
    }

    ButtonLabel {
        id: label

        anchors.left: ring.right
        anchors.leftMargin: 16
        anchors.verticalCenter: ring.verticalCenter
        width: Math.min(implicitWidth, button.maximumWidth - ring.width - 16)
        elide: Text.ElideRight
        font.pixelSize: Theme.bodyText
        font.weight: Font.Medium
    }
}
