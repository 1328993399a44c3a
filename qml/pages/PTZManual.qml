pragma ComponentBehavior: Bound

import QtQuick
import VORNApp as Vorn
import "../controls"

// Manual camera control: moves and zooms while a button is held, applies and saves presets.
FocusScope {
    id: page

    readonly property var camera: ptz // qmllint disable unqualified

    function offerSave(button: PresetButton): void {
        saveButton.preset = button;
        saveButton.visible = true;
    }

    function dropSave(): void {
        // Takes the focus from the button before it is hidden.
        if (saveButton.activeFocus)
            saveButton.preset.forceActiveFocus();
        saveButton.visible = false;
    }

    onVisibleChanged: {
        if (!page.visible)
            page.dropSave();
    }
    Keys.onEscapePressed: event => {
        event.accepted = saveButton.visible;
        page.dropSave();
    }

    Rectangle {
        objectName: "zoomPanel"
        x: 158
        y: 136
        width: 70
        height: 186
        radius: Theme.padRadius
        color: Theme.padGrey

        MovementButton {
            objectName: "zoomIn"
            x: 18
            y: 40
            movement: Vorn.CameraControl.Manual_ZoomIn
            source: "qrc:/images/magnifier.png"
            accessibleName: qsTr("Zoom in")

            Image {
                x: 8
                y: 8
                source: "qrc:/images/magnifier_plus.png"
            }
        }

        MovementButton {
            objectName: "zoomOut"
            x: 18
            y: 110
            movement: Vorn.CameraControl.Manual_ZoomOut
            source: "qrc:/images/magnifier.png"
            accessibleName: qsTr("Zoom out")

            Image {
                x: 8
                y: 13
                source: "qrc:/images/magnifier_minus.png"
            }
        }
    }

    Rectangle {
        objectName: "directionPad"
        x: 258
        y: 136
        width: 186
        height: 186
        radius: Theme.padRadius
        color: Theme.padGrey

        MovementButton {
            objectName: "up"
            anchors.horizontalCenter: parent.horizontalCenter
            y: 21
            movement: Vorn.CameraControl.Manual_Up
            source: "qrc:/images/arrow_up.png"
            accessibleName: qsTr("Move up")
        }

        MovementButton {
            objectName: "down"
            anchors.horizontalCenter: parent.horizontalCenter
            y: 136
            movement: Vorn.CameraControl.Manual_Down
            source: "qrc:/images/arrow_down.png"
            accessibleName: qsTr("Move down")
        }

        MovementButton {
            objectName: "left"
            x: 21
            anchors.verticalCenter: parent.verticalCenter
            movement: Vorn.CameraControl.Manual_Left
            source: "qrc:/images/arrow_left.png"
            accessibleName: qsTr("Move left")
        }

        MovementButton {
            objectName: "right"
            x: 136
            anchors.verticalCenter: parent.verticalCenter
            movement: Vorn.CameraControl.Manual_Right
            source: "qrc:/images/arrow_right.png"
            accessibleName: qsTr("Move right")
        }
    }

    Row {
        id: presetRow

        objectName: "presetRow"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 362
        spacing: 14

        Repeater {
            model: [Vorn.CameraControl.Preset_P1, Vorn.CameraControl.Preset_P2, Vorn.CameraControl.Preset_P3]

            PresetButton {
                id: presetButton

                required property int index
                required property int modelData

                objectName: "preset" + (index + 1)
                number: modelData
                //: Button that moves the camera to a saved position. %1 is a number from 1 to 3.
                text: qsTr("Preset %1").arg(index + 1)
                //: Description of a preset button, for screen readers.
                Accessible.description: qsTr("Hold to save the position")
                longPresse: true
                onClicked: {
                    page.dropSave();
                    page.camera.preset(number, Vorn.CameraControl.Preset_Apply);
                }
                onTriggered: page.offerSave(presetButton)
            }
        }
    }

    MouseArea {
        objectName: "dismissArea"
        anchors.fill: parent
        z: 1
        enabled: saveButton.visible
        onClicked: page.dropSave()
    }

    PresetButton {
        id: saveButton

        // The preset button for which the save button is shown.
        property PresetButton preset: null

        objectName: "saveButton"
        x: preset ? presetRow.x + preset.x - (width - preset.width) / 2 : 0
        y: presetRow.y - height - 5
        z: 2
        width: 110
        border.width: 1
        border.color: Theme.mutedText
        visible: false
        //: Button above a preset: keeps the present position of the camera in it.
        text: qsTr("Save Position")
        onClicked: {
            const number = saveButton.preset.number;
            page.dropSave();
            page.camera.preset(number, Vorn.CameraControl.Preset_Save);
        }

        Announcement {
            text: saveButton.text
        }
    }
}
