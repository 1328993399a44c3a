import QtQuick
import QtQuick.Controls.Basic

// Slider for a volume from 0 to 100, drawn as a filled bar. `picked` is emitted once, when the press ends, or when a
// screen reader changes the value.
Slider {
    id: slider

    // The display's volume, which the slider follows.
    required property int volume

    signal picked(volume: int)

    width: 640
    height: 52
    padding: 0
    value: volume
    from: 0
    to: 100
    stepSize: 1
    snapMode: Slider.SnapAlways
    // Pointer presses do not take the keyboard focus.
    focusPolicy: Qt.TabFocus
    handle: null
    Accessible.ignored: !enabled
    onValueChanged: {
        if (!slider.pressed && Math.round(slider.value) !== slider.volume)
            slider.picked(slider.value);
    }
    onPressedChanged: {
        if (!slider.pressed)
            slider.picked(slider.value);
    }
    // Auto-repeat sends releases as well, which would end the press each time.
    Keys.onReleased: event => {
        event.accepted = event.isAutoRepeat;
    }

    background: Rectangle {
        objectName: "track"
        color: Theme.trackGrey
        radius: Theme.panelRadius

        // Clipped instead of narrowed, so that the fill follows the track's round corners at every width.
        Item {
            objectName: "fill"
            anchors.left: parent.left
            width: slider.position * parent.width
            height: parent.height
            clip: true

            Rectangle {
                anchors.left: parent.left
                width: slider.width
                height: slider.height
                radius: Theme.panelRadius
                color: Theme.switchGreen
            }
        }

        Image {
            anchors.left: parent.left
            anchors.leftMargin: 24
            y: 16
            source: "qrc:/images/volume_white.png"
        }
    }

    FocusRing {
        control: slider
        controlRadius: Theme.panelRadius
    }
}
