import QtQuick
import "../controls"

// The camera page. While the display's camera is in use it shows the controls, otherwise a request to turn the
// camera on.
Item {
    id: page

    readonly property int page_id_open_camera: 0
    readonly property int page_id_ptz: 1
    property int currentPage: page_id_open_camera

    readonly property var device: deviceControl // qmllint disable unqualified
    readonly property var camera: ptz // qmllint disable unqualified
    readonly property int connectMode: device.connectMode

    onConnectModeChanged: {
        if (page.connectMode === 0)
            page.currentPage = page.page_id_open_camera;
        else
            page.camera.requestStatus();
    }

    Connections {
        target: page.camera

        function onCameraSwitch(sw: int): void {
            page.currentPage = sw !== 0 ? page.page_id_ptz : page.page_id_open_camera;
        }
    }

    FacePanel {
        id: frame

        FittedLabel {
            id: openCameraFace

            objectName: "openCameraFace"
            anchors.centerIn: parent
            maximumWidth: frame.width - 40
            visible: page.currentPage === page.page_id_open_camera
            text: qsTr("Please turn on your camera in any app\nto make adjustments")
            color: Theme.textGrey
            font.pixelSize: Theme.faceText
            lineHeight: Theme.lineSpacing
            horizontalAlignment: Text.AlignHCenter
        }

        PTZ {
            id: ptzFace

            objectName: "ptzFace"
            anchors.fill: parent
            visible: page.currentPage === page.page_id_ptz
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 20
            spacing: 8

            PageDot {
                current: openCameraFace.visible
            }

            PageDot {
                current: ptzFace.visible
            }
        }
    }
}
