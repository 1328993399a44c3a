import QtQuick
import "../controls"

// Setting: whether the display's devices are activated automatically in a BYOD meeting.
Item {
    id: page

    readonly property var device: deviceControl // qmllint disable unqualified

    LatoBoldLabel {
        id: title

        x: 68
        y: 183
        text: qsTr("Smart BYOD Switch")
        font.pixelSize: Theme.bodyText
    }

    LatoRegularLabel {
        id: explanation

        x: 68
        y: 220
        text: qsTr("The VORN device’s microphone, camera, and speakers will automatically activate \nwhen start a BYOD meeting.")
        font.pixelSize: Theme.smallText
    }

    PanelSwitch {
        objectName: "byodSwitch"
        x: 574
        y: 184
        checked: page.device.useRemoteDevice
        accessibleName: title.text
        Accessible.description: explanation.text
        onClicked: page.device.setUseRemoteDevice(!page.device.useRemoteDevice)
    }
}
