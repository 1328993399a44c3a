import QtQuick
import "../controls"

// Setting: whether the display's devices are activated automatically in a BYOD meeting.
Item {
    id: page

    readonly property var device: deviceControl // qmllint disable unqualified

    FittedLabel {
        id: title

        anchors.left: parent.left
        anchors.leftMargin: 68
        y: 183
        maximumWidth: byodSwitch.anchors.leftMargin - anchors.leftMargin - 16
        maximumHeight: 34
        font.weight: Font.Bold
        text: qsTr("Smart BYOD Switch")
        font.pixelSize: Theme.bodyText
    }

    FittedLabel {
        id: explanation

        anchors.left: parent.left
        anchors.leftMargin: 68
        y: 220
        maximumWidth: byodSwitch.anchors.leftMargin - anchors.leftMargin - 16
        text: qsTr("The VORN device’s microphone, camera, and speakers will automatically activate \nwhen start a BYOD meeting.")
        font.pixelSize: Theme.smallText
        lineHeight: Theme.lineSpacing
    }

    PanelSwitch {
        id: byodSwitch

        objectName: "byodSwitch"
        anchors.left: parent.left
        anchors.leftMargin: 574
        y: 184
        checked: page.device.useRemoteDevice
        accessibleName: title.text
        Accessible.description: explanation.text
        onClicked: page.device.setUseRemoteDevice(!page.device.useRemoteDevice)
    }
}
