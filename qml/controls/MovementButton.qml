import QtQuick
import VORNApp as Vorn

// A picture that moves the camera for as long as it is held down.
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
