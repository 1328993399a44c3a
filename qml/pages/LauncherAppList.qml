import QtQuick
import "../controls"

// Setting: the meeting applications in the launcher. At least one stays selected.
Item {
    id: page

    readonly property var device: deviceControl // qmllint disable unqualified
    readonly property int shownApps: (zoomBox.checked ? 1 : 0) + (teamsBox.checked ? 1 : 0)
                                     + (googleBox.checked ? 1 : 0)

    // The state of a box after a click on it.
    function toggled(checked: bool): bool {
        return !checked || page.shownApps === 1;
    }

    FittedLabel {
        anchors.left: parent.left
        anchors.leftMargin: 68
        y: 183
        maximumWidth: page.width - 2 * anchors.leftMargin
        maximumHeight: 44
        text: qsTr("Select which apps appear on your launcher. Only checked apps will be shown.")
        font.pixelSize: Theme.bodyText
    }

    Column {
        anchors.left: parent.left
        anchors.leftMargin: 72
        y: 232
        spacing: 24

        CircularCheckBox {
            id: zoomBox

            anchors.left: parent?.left
            text: qsTr("Zoom")
            checked: page.device.supportLaunchZoom
            onClicked: page.device.supportLaunchZoom = page.toggled(checked)
        }

        CircularCheckBox {
            id: teamsBox

            anchors.left: parent?.left
            text: qsTr("Teams")
            checked: page.device.supportLaunchTeams
            onClicked: page.device.supportLaunchTeams = page.toggled(checked)
        }

        CircularCheckBox {
            id: googleBox

            anchors.left: parent?.left
            text: qsTr("Google")
            checked: page.device.supportLaunchGoogle
            onClicked: page.device.supportLaunchGoogle = page.toggled(checked)
        }
    }
}
