import QtQuick
import QtQuick.Controls.Basic

// A volume from 0 to 100 as a bar that is filled up to it. `picked` comes once, when a press ends.
Slider {
    id: slider

    signal picked(volume: int)

    width: 640
    height: 52
    padding: 0
    from: 0
    to: 100
    stepSize: 1
    snapMode: Slider.SnapAlways
    // A pointer press leaves the focus where it is.
    focusPolicy: Qt.TabFocus
    handle: null
    onPressedChanged: {
        if (!slider.pressed)
            slider.picked(slider.value);
    }
    // A held key repeats its release too, which would end the press each time.
    Keys.onReleased: event => {
        event.accepted = event.isAutoRepeat;
    }

    background: Rectangle {
        objectName: "track"
        color: Theme.trackGrey
        radius: Theme.panelRadius

        // Cut off rather than narrowed, so that it keeps to the track's corners at every width.
        Item {
            objectName: "fill"
            width: slider.visualPosition * parent.width
            height: parent.height
            clip: true

            Rectangle {
                width: slider.width
                height: slider.height
                radius: Theme.panelRadius
                color: Theme.switchGreen
            }
        }

        Image {
            x: 24
            y: 16
            source: "qrc:/images/volume_white.png"
        }
    }

    FocusRing {
        control: slider
        controlRadius: Theme.panelRadius
    }
}
