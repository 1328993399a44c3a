import QtQuick
import VORNApp as Vorn

// Image button that moves the camera while it is held.
ControlButton {
    id: button

    required property int movement
    property alias source: picture.source

    readonly property var camera: ptz // qmllint disable unqualified

    width: picture.width
    height: picture.height
    onPressed: button.camera.scale(button.movement, Vorn.CameraControl.Btn_Down)
    onReleased: button.camera.scale(button.movement, Vorn.CameraControl.Btn_Up)

    Image {
        id: picture
    }
}
