import QtQuick
import Qt5Compat.GraphicalEffects
import "../controls"

// Warning that the display's firmware is too old for this program.
Item {
    id: dialog

    readonly property var device: deviceControl // qmllint disable unqualified

    width: 680
    height: 342

    Rectangle {
        id: panel

        anchors.fill: parent
        radius: Theme.panelRadius
        border.width: 1
        border.color: "lightgrey"
        visible: false
    }

    DropShadow {
        anchors.fill: panel
        source: panel
        samples: 20
        color: "#40000000"
        verticalOffset: 2
        transparentBorder: true
    }

    QuickButton {
        objectName: "closeBox"
        anchors.top: parent.top
        anchors.topMargin: 10
        anchors.right: parent.right
        anchors.rightMargin: 10
        width: 20
        radius: 0
        normalColor: "transparent"
        hoverColor: Theme.panelGrey
        pressedColor: "#E3E3E3"
        focusColor: Theme.focusOnWhite
        accessibleName: qsTr("Close")
        onClicked: dialog.visible = false

        Image {
            source: "qrc:/images/close.png"
        }
    }

    Image {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 80
        source: "qrc:/images/warning.png"
    }

    PanelLabel {
        y: 142
        width: 522
        height: 54
        // The English text is a little wider than its box.
        leftPadding: -30
        rightPadding: -30
        text: qsTr("Update the K4V Windows firmware to version %1 to use the VORN App.\nPlease update the firmware first.").arg(dialog.device.k4vLowestVer)
    }

    PanelButton {
        objectName: "okButton"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 226
        width: 120
        text: qsTr("OK")
        onClicked: dialog.visible = false
    }
}
